#include "reports/windows/FrmPrintOptions.h"

#include "reports/windows/FittedPicture.h"
#include "reports/windows/NameFault.h"
#include "reports/windows/Pictures.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/HeadedGroup.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ledgrove {

namespace {

/// The size of the report's picture boxes.
constexpr QSize pictureSize(212, 180);

EntryField* MakeTextField(const char* control, const QString& humanName) {
    EntryField* field = MakeField(control, humanName);
    field->setAlignment(Qt::AlignLeft);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 42);
    return field;
}

} // namespace

FrmPrintOptions::FrmPrintOptions(HeaderOptions& record, const ReportDesk& desk, QWidget* parent)
    : EntryDialog({"FrmPrintOptions", "Print Options", "ctxPrintOptions"}, desk.State, desk.Outside, parent)
    , m_record(record)
    , m_machine(desk.Machine) {
    BuildControls();
    Bind("ecBuilderName", m_record.ecBuilderName);
    Bind("txtHomeBuyer", m_record.txtHomeBuyer);
    Bind("ecLogoFile", m_record.ecLogoFile);
    // A typed path is loaded when the entry is complete.
    connect(findChild<EntryField*>("ecLogoFile"), &QLineEdit::editingFinished, this,
            &FrmPrintOptions::ShowLogo);
    m_choice->setCurrentIndex(m_record.cboUserLogoOptions);
    connect(m_choice, &QComboBox::currentIndexChanged, this, [this](int choice) {
        m_record.cboUserLogoOptions = choice;
        ShowLogo();
    });
    ShowLogo();
    Present();
}

void FrmPrintOptions::accept() {
    if (!Succeeded(Module1::ConfirmHeaderOptions(m_record, State())))
        return;
    EntryDialog::accept();
    // After the dialog has closed: some window managers activate no window when two close at once.
    const ReportHeader& header = State().Header;
    for (const std::string& notice :
         {Module1::UnkeptNameNotice(State()), NameFault(header.BuilderName), NameFault(header.HomeBuyer)})
        if (!notice.empty())
            Outside().ShowMessage({ApplicationTitle, notice, MessageIcon::Information});
}

void FrmPrintOptions::BuildControls() {
    auto* layout = new QVBoxLayout;
    layout->addWidget(MakeHeaderGroup());
    layout->addStretch();
    LayOut(layout, MakeButtonRow());
}

QGroupBox* FrmPrintOptions::MakeHeaderGroup() {
    auto* group = new HeadedGroup("Report Header");
    QGridLayout* grid = MakeGrid(group);
    AddNames(*grid);
    AddLogo(*grid);
    return group;
}

void FrmPrintOptions::AddNames(QGridLayout& grid) {
    EntryField* builder = MakeTextField("ecBuilderName", "User Name");
    EntryField* buyer = MakeTextField("txtHomeBuyer", "Home Buyer Name");
    grid.addWidget(MakeCaption("&User Name: ", builder), 0, 0);
    grid.addWidget(builder, 0, 1, 1, 2);
    grid.addWidget(MakeCaption("Home &Buyer Name: ", buyer), 1, 0);
    grid.addWidget(buyer, 1, 1, 1, 2);
}

void FrmPrintOptions::AddLogo(QGridLayout& grid) {
    m_choice = new QComboBox;
    IdentifyByDescription(*m_choice, "cboUserLogoOptions", "Additional Report Logo");
    for (const char* choice : LogoChoices)
        m_choice->addItem(choice);
    m_picture = new QLabel;
    Identify(*m_picture, "imgUserLogo", "Additional Report Logo");
    m_picture->setFixedSize(pictureSize);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setFrameShape(QFrame::StyledPanel);
    EntryField* file = MakeTextField("ecLogoFile", "User Logo");
    QLabel* fileCaption = MakeCaption("User &Logo: ", file);
    fileCaption->setObjectName("lblUserLogo");
    QPushButton* chooser = MakeButton("bLogoFile", "B&rowse...");
    OnClick(*chooser, [this] { ChooseLogoFile(); });

    grid.addWidget(MakeCaption("&Additional Report Logo", m_choice), 2, 0);
    grid.addWidget(m_choice, 2, 1);
    grid.addWidget(m_picture, 3, 1, 1, 2, Qt::AlignLeft);
    grid.addWidget(fileCaption, 4, 0);
    grid.addWidget(file, 4, 1);
    grid.addWidget(chooser, 4, 2);
}

void FrmPrintOptions::Bind(const char* control, Field& field) {
    EntryEvents events;
    events.GotFocus = events.Click = [this] { Context().Focus.SelectFieldText(); };
    events.KeyPress = [this](KeyCode key) {
        if (key == KeyCode::Enter)
            Context().Focus.NextField();
        return Module1::EntryOutcome::Accepted;
    };
    // Composed, "e" with an accent is one character, which the settings file may hold and fonts have.
    events.Change = [&field](const std::string& text) {
        field.Text = QString::fromStdString(text).normalized(QString::NormalizationForm_C).toStdString();
    };
    BindField(control, field, std::move(events));
}

void FrmPrintOptions::ShowLogo() {
    const LogoView view = Module1::ViewOfLogo(m_record, State().Folder);
    for (const char* control : {"lblUserLogo", "ecLogoFile", "bLogoFile"})
        findChild<QWidget*>(control)->setEnabled(view.FileEnabled);
    ShowFitted(*m_picture, view.Picture.empty() ? QImage() : LoadPicture(view.Picture));
}

void FrmPrintOptions::ChooseLogoFile() {
    const QString file = m_machine.ChooseLogo(*this);
    if (!file.isEmpty())
        m_record.ecLogoFile.Text = file.toStdString();
    // The file chooser may have changed the current folder, from which relative names are read.
    QDir::setCurrent(QString::fromStdString(State().Folder.string()));
    Refresh();
    ShowLogo();
}

} // namespace Ledgrove
