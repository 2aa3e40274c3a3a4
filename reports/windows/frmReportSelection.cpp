#include "reports/windows/frmReportSelection.h"

#include "reports/HeaderOptions.h"
#include "reports/windows/FrmPrintOptions.h"
#include "reports/windows/frmPrint.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/HeadedGroup.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ledgrove {

namespace {

struct SectionBox {
    const char* Control;
    const char* Caption;
    bool ReportSections::*Section;
};

// There is intentionally no second box; the numbers keep the gap.
constexpr SectionBox sectionBoxes[] = {
    {"chkReport1", "Cash &Flow", &ReportSections::CashFlow},
    {"chkReport3", "&More Home", &ReportSections::MoreHome},
    {"chkReport4", "&Affordability", &ReportSections::Affordability},
    {"chkReport5", "&Summary", &ReportSections::Summary},
    {"chkReport6", "F&inancial Assumptions", &ReportSections::FinancialAssumptions}};

constexpr const char* helpText =
    "Select Print Reports. Add your company name and logo to reports by selecting the Report Header "
    "button. Select the sections you want to print, then Preview and Print.";

} // namespace

frmReportSelection::frmReportSelection(Session& session, Host& outside, const PrintOutside& machine,
                                       QWidget* parent)
    : EntryDialog({"frmReportSelection", "Report Selection", "ctxReportSelection"}, session, outside, parent)
    , m_machine(machine) {
    BuildControls();
    Tick(m_machine.Sections.Load());
    Present();
}

void frmReportSelection::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !qobject_cast<QPushButton*>(focusWidget()))
        findChild<QPushButton*>("bPrint")->click();
    else
        EntryDialog::keyPressEvent(event);
}

ReportSections frmReportSelection::Sections() const {
    ReportSections sections;
    for (const SectionBox& box : sectionBoxes)
        sections.*box.Section = findChild<QCheckBox*>(box.Control)->isChecked();
    return sections;
}

void frmReportSelection::Tick(const ReportSections& sections) {
    for (const SectionBox& box : sectionBoxes)
        findChild<QCheckBox*>(box.Control)->setChecked(sections.*box.Section);
}

void frmReportSelection::BuildControls() {
    QLabel* heading = TextLabel("Ledgrove Reports");
    MakeBold(*heading);
    QLabel* help = TextLabel(helpText);
    help->setWordWrap(true);
    help->setMinimumWidth(help->fontMetrics().averageCharWidth() * 52);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(12);
    layout->addWidget(heading);
    layout->addWidget(help);
    layout->addWidget(MakeBoxes());
    layout->addStretch();
    LayOut(layout, MakeButtons());
}

QWidget* frmReportSelection::MakeBoxes() {
    auto* group = new HeadedGroup("Sections");
    auto* column = new QVBoxLayout(group);
    for (const SectionBox& section : sectionBoxes) {
        auto* box = new QCheckBox(section.Caption);
        Identify(*box, section.Control, QString(section.Caption).remove('&'));
        column->addWidget(box);
    }
    connect(group->findChild<QCheckBox*>("chkReport3"), &QCheckBox::toggled, this,
            [this] { Module1::ReloadFeatureCaptions(State()); });
    return group;
}

QLayout* frmReportSelection::MakeButtons() {
    QPushButton* header = MakeButton("cmdReportHeader", "&Report Header");
    QPushButton* preview = MakeButton("bPrint", "&Preview");
    QPushButton* cancel = MakeButton("bCancel", "&Cancel");
    QPushButton* help = MakeButton("bHelp", "&Help");
    OnClick(*header, [this] { OpenHeaderOptions(); });
    OnClick(*preview, [this] { Preview(); });
    OnClick(*cancel, [this] { reject(); });
    OnClick(*help, [this] {
        QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier));
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(header);
    row->addStretch();
    for (QPushButton* button : {preview, cancel, help})
        row->addWidget(button);
    // The frame of the default button shows which one Enter presses.
    for (QPushButton* button : {header, preview, cancel, help})
        button->setAutoDefault(true);
    preview->setDefault(true);
    return row;
}

void frmReportSelection::OpenHeaderOptions() {
    HeaderOptions record;
    if (Succeeded(Module1::FillHeaderOptions(record, State())))
        FrmPrintOptions(record, {State(), Outside(), m_machine}, this).exec();
    // The next step, so that Enter does not open the header again.
    findChild<QPushButton*>("bPrint")->setFocus();
}

void frmReportSelection::Preview() {
    AssumptionsScreen assumptions;
    if (!Succeeded(Module1::FillAssumptions(assumptions, State())))
        return;
    const ReportSections sections = Sections();
    m_machine.Sections.Save(sections);
    const auto write = [this, &assumptions, sections](PrintDocument& document) {
        const Session& session = State();
        const auto logo = LogoPicture(session, Module1::StoredLogoOption(session));
        modPrint::WriteReport(document, {session, assumptions, sections, session.EmblemFile(), logo});
    };
    frmPrint({write, m_machine}, State(), Outside(), this).exec();
}

} // namespace Ledgrove
