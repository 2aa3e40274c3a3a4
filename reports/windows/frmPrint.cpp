#include "reports/windows/frmPrint.h"

#include "reports/windows/FittedPicture.h"
#include "reports/windows/PreviewPane.h"
#include "reports/windows/PrintRun.h"
#include "reports/windows/PrinterSend.h"
#include "reports/windows/ReportFile.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

namespace Ledgrove {

namespace {

QComboBox* MakePickList(const char* control, const QString& description) {
    auto* list = new QComboBox;
    IdentifyByDescription(*list, control, description);
    return list;
}

void SetCaption(QPushButton& button, const QString& caption) {
    button.setText(caption);
    SetSpokenName(button, QString(caption).remove('&'));
}

/// 1 or -1 for Ctrl with plus or minus, also where "+" is on a shifted key; 0 for other keys.
int ZoomStepOf(const QKeyEvent& key) {
    if (!(key.modifiers() & Qt::ControlModifier))
        return 0;
    if (key.key() == Qt::Key_Plus || key.key() == Qt::Key_Equal)
        return 1;
    return key.key() == Qt::Key_Minus ? -1 : 0;
}

} // namespace

frmPrint::frmPrint(PreviewParts parts, Session& session, Host& outside, QWidget* parent)
    : EntryDialog({"frmPrint", "Summary Report", "ctxPrint"}, session, outside, parent)
    , m_parts(std::move(parts))
    , m_document(m_measure)
    , m_preview(new PreviewPane(m_document))
    , m_printers(MakePickList("cboPrinter", "Printer"))
    , m_orientations(MakePickList("cboOrientation", "Orientation"))
    , m_zooms(MakePickList("cboZoom", "Zoom in percent")) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_copies.Text = "1";
    BuildControls();
    Connect();
    Load();
    Present();
    m_preview->setFocus();
    m_normalSize = size();
}

void frmPrint::Load() {
    m_tracing = false;
    m_loading = true;
    InitPicklists();
    m_loading = false;
    LoadPrinters();
    InitvsPrinter();
    RefreshPrintView();
}

void frmPrint::InitPicklists() {
    Trace("In InitPicklists Load");
    m_zooms->clear();
    for (const char* zoom : ZoomItems)
        m_zooms->addItem(zoom);
    m_orientations->clear();
    m_orientations->addItems({"Portrait", "Landscape"});
}

void frmPrint::LoadPrinters() {
    Trace("In LoadPrinters");
    const std::string current = m_devices.empty() ? std::string() : Device().Name;
    m_devices = AllDevices(m_parts.Machine.Server);
    Trace("In LoadPrinters - after with vsprinter");
    const auto found = std::find_if(m_devices.begin(), m_devices.end(),
                                    [&current](const PrinterDevice& one) { return one.Name == current; });
    m_device = found == m_devices.end() ? DefaultDevice(m_devices)
                                        : static_cast<std::size_t>(found - m_devices.begin());
    {
        // Without the blocker, every printer selected on the way would be queried for its details.
        const QSignalBlocker nothingChosen(m_printers);
        m_printers->clear();
        for (const PrinterDevice& device : m_devices)
            m_printers->addItem(QString::fromStdString(device.Name));
        m_printers->setCurrentIndex(static_cast<int>(m_device));
    }
    ChangePrinter();
}

void frmPrint::InitvsPrinter() {
    Trace("In InitvsPrinter");
    PrepareReport(m_document, SheetOf(m_paper, m_orientation),
                  m_parts.Machine.Today().toString("MM/dd/yyyy").toStdString());
    m_previewMode = true;
    m_preview->ShowPage(1);
    Trace("Just did With vsPrinter ..");
    Trace(" Just did .FontItalic ..");
    Trace("Just did PenStyle..");
}

void frmPrint::RefreshPrintView() {
    Trace("In RefreshPrintView");
    m_zooms->setEnabled(true);
    m_orientations->setEnabled(true);
    // During printing, the print button keeps its state.
    m_print->setEnabled(m_previewMode);
    m_document.Geometry = SheetOf(m_paper, m_orientation);
    m_document.Start();
    m_parts.WriteReport(m_document);
    m_document.End();
    m_preview->Refresh();
}

void frmPrint::BuildControls() {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addLayout(MakeHeader());
    layout->addWidget(m_preview, 1);
    layout->addLayout(MakeControlRow());
}

QLayout* frmPrint::MakeHeader() {
    auto* picture = new QLabel;
    Identify(*picture, "imgHdr", "Ledgrove");
    picture->setFixedSize(64, 56);
    picture->setAlignment(Qt::AlignCenter);
    ShowFitted(*picture, LoadPicture(State().EmblemFile()));

    m_printers->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_printers->setMinimumContentsLength(22);
    m_size = TextLabel({});
    IdentifyByDescription(*m_size, "lblSize", "Paper size in inches, width by height");
    m_status = TextLabel({});
    IdentifyByDescription(*m_status, "lblStatus", "Printer details");
    // A long port name must not widen the window.
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_status->setMinimumHeight(3 * m_status->fontMetrics().lineSpacing());

    auto* grid = MakeGrid(nullptr);
    grid->addWidget(picture, 0, 0, 2, 1);
    grid->addWidget(MakeCaption("P&rinter:", m_printers), 0, 1);
    grid->addWidget(m_printers, 0, 2, 1, 2);
    grid->addWidget(MakeCaption("&Orientation:", m_orientations), 1, 1);
    grid->addWidget(m_orientations, 1, 2);
    grid->addWidget(m_size, 1, 3);
    grid->addWidget(m_status, 0, 4, 2, 1, Qt::AlignVCenter);
    grid->setColumnStretch(4, 1);
    return grid;
}

QLayout* frmPrint::MakeControlRow() {
    EntryField* copies = MakeField("txtCopies", "Copies");
    copies->setMinimumWidth(0);
    copies->setMaximumWidth(copies->fontMetrics().horizontalAdvance("88,888") + 20);
    QLabel* zoomCaption = MakeCaption("&Zoom", m_zooms);
    zoomCaption->setObjectName("Label1");
    QLabel* copiesCaption = MakeCaption("Cop&ies", copies);
    copiesCaption->setObjectName("lblCopies");
    m_changePage = MakeButton("bChgPage", "Pa&ge 2");
    m_maximize = MakeButton("bMaxMin", "&Maximize");
    m_print = MakeButton("cmdPrint", "&Print");

    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(zoomCaption);
    row->addWidget(m_zooms);
    row->addSpacing(12);
    row->addWidget(m_changePage);
    row->addWidget(m_maximize);
    row->addStretch();
    row->addWidget(copiesCaption);
    row->addWidget(copies);
    row->addWidget(m_print);
    QPushButton* close = MakeButton("cmdClose", "&Close");
    OnClick(*close, [this] { reject(); });
    row->addWidget(close);
    return row;
}

void frmPrint::Connect() {
    connect(m_printers, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_device = static_cast<std::size_t>(index);
        ChangePrinter();
    });
    connect(m_orientations, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            ChangeOrientation();
    });
    connect(m_zooms, &QComboBox::currentIndexChanged, this, &frmPrint::ChangeZoom);
    connect(m_preview, &PreviewPane::ZoomStepped, this, &frmPrint::StepZoom);
    connect(m_preview, &PreviewPane::PageShown, this, &frmPrint::ShowPageButton);
    OnClick(*m_changePage, [this] { ChangePage(); });
    OnClick(*m_maximize, [this] { MaximizeOrRestore(); });
    OnClick(*m_print, [this] { Print(); });
    EntryEvents events;
    events.GotFocus = events.Click = [this] { Context().Focus.SelectFieldText(); };
    events.Change = [this](const std::string& text) { m_copies.Text = text; };
    events.LostFocus = [this] { return LeaveCopies(); };
    BindField("txtCopies", m_copies, std::move(events));
}

void frmPrint::showEvent(QShowEvent* event) {
    EntryDialog::showEvent(event);
    if (!event->spontaneous())
        m_zooms->setCurrentIndex(ZoomAtActivation);
}

void frmPrint::changeEvent(QEvent* event) {
    EntryDialog::changeEvent(event);
    // The window's own button also maximizes.
    if (event->type() == QEvent::WindowStateChange)
        ShowWindowButton();
}

void frmPrint::keyPressEvent(QKeyEvent* event) {
    if (const int step = ZoomStepOf(*event))
        return StepZoom(step);
    if (!m_preview->TakeKey(*event))
        EntryDialog::keyPressEvent(event);
}

void frmPrint::ChangeZoom() {
    if (m_zooms->currentIndex() >= 0)
        m_preview->SetZoom(m_zooms->currentText().toInt());
}

void frmPrint::StepZoom(int step) {
    m_zooms->setCurrentIndex(ZoomStep(m_zooms->currentIndex(), step));
}

void frmPrint::ChangePrinter() {
    const PrinterDetails details =
        IsPdf(Device()) ? PdfDetails() : m_parts.Machine.Server.Details(Device().Name);
    m_status->setText(QString::fromStdString(StatusText(Device(), details)));
    m_status->setToolTip(m_status->text());
    const Paper paper = PaperFor(details);
    const bool samePaper = paper == m_paper;
    m_paper = paper;
    ShowSize();
    if (!samePaper && m_document.CurrentState() == PrintDocument::State::Ended)
        RefreshPrintView();
}

void frmPrint::ChangeOrientation() {
    m_orientation = static_cast<PageOrientation>(m_orientations->currentIndex());
    ShowSize();
    ChangeZoom();
    if (!m_loading)
        RefreshPrintView();
}

void frmPrint::ChangePage() {
    if (m_document.PageCount() > 1)
        m_preview->ShowPage(PageButtonAt(m_preview->ShownPage(), m_document.PageCount()).Leads);
}

void frmPrint::MaximizeOrRestore() {
    if (!isMaximized())
        return showMaximized();
    showNormal();
    resize(m_normalSize);
}

void frmPrint::Print() {
    if (!Module1::ValidateField(Context(), m_copies, FieldFormat::Whole))
        return;
    LeaveCopies();
    if (!MayPrintNow())
        return;
    PrintRequest request{m_document, Device(), m_paper.Name, CopiesIn(m_copies.Text), {}};
    if (IsPdf(request.Device)) {
        request.PdfFile = m_parts.Machine.ChoosePdf(*this);
        if (request.PdfFile.isEmpty())
            return;
    }
    m_print->setEnabled(false);
    m_previewMode = false;
    RefreshPrintView();
    const QString fault = RunPrint(request, m_parts.Machine.Server, *this);
    m_previewMode = true;
    m_print->setEnabled(true);
    m_print->setFocus();
    if (!fault.isEmpty())
        Outside().ShowMessage({ApplicationTitle, fault.toStdString(), MessageIcon::Exclamation});
}

/// Leaving never refuses a text, so that the window can be closed whatever it is; "Print" refuses it.
Module1::EntryOutcome frmPrint::LeaveCopies() {
    if (!Module1::FieldComplaint(m_copies.Text, FieldFormat::Whole).empty())
        return Module1::EntryOutcome::Unchanged;
    m_copies.Text = CopiesText(m_copies.Text);
    Refresh();
    return Module1::EntryOutcome::Accepted;
}

bool frmPrint::MayPrintNow() {
    return IsPdf(Device()) || MayPrint("The report", Device().Name, m_parts.Machine.Server, Outside());
}

void frmPrint::ShowSize() {
    m_size->setText(QString::fromStdString(SizeText(SheetOf(m_paper, m_orientation))));
}

void frmPrint::ShowPageButton() {
    const PageButton button = PageButtonAt(m_preview->ShownPage(), m_document.PageCount());
    m_changePage->setVisible(button.Visible);
    SetCaption(*m_changePage, QString(button.Caption).replace('g', "&g"));
}

void frmPrint::ShowWindowButton() {
    SetCaption(*m_maximize, isMaximized() ? "&Minimize" : "&Maximize");
}

void frmPrint::Trace(const char* step) {
    if (m_tracing)
        Outside().ShowMessage({ApplicationTitle, step});
}

} // namespace Ledgrove
