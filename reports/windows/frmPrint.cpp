#include "reports/windows/frmPrint.h"

#include "reports/windows/PreviewHeader.h"
#include "reports/windows/PreviewPane.h"
#include "reports/windows/PrintRun.h"
#include "reports/windows/PrinterBox.h"
#include "reports/windows/PrinterSend.h"
#include "reports/windows/ReportFile.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"
#include "ui/windows/NormalPlace.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
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
    : EntryDialog({"frmPrint", parts.Title, "ctxPrint"}, session, outside, parent)
    , m_parts(std::move(parts))
    , m_document(m_measure)
    , m_header(new PreviewHeader(LoadPicture(State().EmblemFile())))
    , m_preview(new PreviewPane(m_document))
    , m_printers(&m_header->Printers())
    , m_orientations(&m_header->Orientations())
    , m_zooms(MakePickList("cboZoom", "Zoom in percent")) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_copies.Text = "1";
    BuildControls();
    Connect();
    Load();
    m_orientations->setCurrentIndex(static_cast<int>(m_parts.Orientation));
    Present();
    m_preview->setFocus();
    m_place = new NormalPlace(*this);
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
    ListDevices();
    Trace("In LoadPrinters - after with vsprinter");
    ChangePrinter();
}

/// Lists the computer's printers. The chosen printer stays if it still exists, otherwise it is the default
/// printer. Returns whether it stays.
bool frmPrint::ListDevices() {
    const std::string current = m_devices.empty() ? std::string() : Device().Name;
    m_devices = AllDevices(m_parts.Machine.Server);
    const auto found = std::find_if(m_devices.begin(), m_devices.end(),
                                    [&current](const PrinterDevice& one) { return one.Name == current; });
    const bool stays = found != m_devices.end();
    m_device = stays ? static_cast<std::size_t>(found - m_devices.begin()) : DefaultDevice(m_devices);
    QStringList names;
    for (const PrinterDevice& device : m_devices)
        names += QString::fromStdString(OneLine(device.Name));
    m_printers->SetPrinters(names, static_cast<int>(m_device));
    return stays;
}

/// For the opening pick list: printers come and go.
void frmPrint::ReadPrintersAgain() {
    if (ListDevices())
        ShowStatus();
    else
        ChangePrinter();
}

void frmPrint::InitvsPrinter() {
    Trace("In InitvsPrinter");
    PrepareReport(m_document, SheetOf(m_paper, m_orientation),
                  m_parts.Machine.Today().toString("MM/dd/yyyy").toStdString());
    m_document.Title = m_parts.Title;
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
    m_layout = new QVBoxLayout(this);
    m_layout->addWidget(m_header);
    m_layout->addWidget(m_preview, 1);
    m_controlRow = MakeControlRow();
    m_layout->addLayout(m_controlRow);
    LayOutControls();
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
    connect(m_printers, &PrinterBox::Opening, this, &frmPrint::ReadPrintersAgain);
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
    m_print->installEventFilter(this);
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
    if (event->type() == QEvent::WindowStateChange) {
        ShowWindowButton();
        LayOutControls();
    }
}

void frmPrint::resizeEvent(QResizeEvent* event) {
    EntryDialog::resizeEvent(event);
    if (isMaximized())
        LayOutControls();
}

void frmPrint::keyPressEvent(QKeyEvent* event) {
    if (const int step = ZoomStepOf(*event))
        return StepZoom(step);
    if (!m_preview->TakeKey(*event))
        EntryDialog::keyPressEvent(event);
}

bool frmPrint::eventFilter(QObject* watched, QEvent* event) {
    // A double click means to print once.
    if (watched == m_print && event->type() == QEvent::MouseButtonDblClick)
        return true;
    return EntryDialog::eventFilter(watched, event);
}

void frmPrint::ChangeZoom() {
    if (m_zooms->currentIndex() >= 0)
        m_preview->SetZoom(m_zooms->currentText().toInt());
}

void frmPrint::StepZoom(int step) {
    m_zooms->setCurrentIndex(ZoomStep(m_zooms->currentIndex(), step));
}

void frmPrint::ChangePrinter() {
    m_details = IsPdf(Device()) ? PdfDetails() : m_parts.Machine.Server.Details(Device().Name);
    ShowStatus();
    const Paper paper = PaperFor(m_details);
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
    if (isMaximized())
        return showNormal();
    m_place->Keep();
    showMaximized();
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

void frmPrint::ShowStatus() {
    m_header->ShowStatus(QString::fromStdString(StatusText(Device(), m_details)));
}

void frmPrint::ShowSize() {
    m_header->ShowSize(QString::fromStdString(SizeText(SheetOf(m_paper, m_orientation))));
}

void frmPrint::ShowPageButton() {
    const PageButton button = PageButtonAt(m_preview->ShownPage(), m_document.PageCount());
    m_changePage->setVisible(button.Visible);
    SetCaption(*m_changePage, QString(button.Caption).replace('g', "&g"));
}

void frmPrint::ShowWindowButton() {
    SetCaption(*m_maximize, isMaximized() ? "&Minimize" : "&Maximize");
}

/// Maximized, the preview gets the size that it has in a maximized window.
void frmPrint::LayOutControls() {
    constexpr int normalSpacing = 8;
    m_header->SetCompact(isMaximized());
    if (!isMaximized()) {
        m_layout->unsetContentsMargins();
        m_layout->setSpacing(normalSpacing);
        return;
    }
    const int height = m_header->sizeHint().height() + m_controlRow->sizeHint().height();
    const int narrowest = std::max(m_header->minimumSizeHint().width(), m_controlRow->minimumSize().width());
    const PreviewFrame frame = MaximizedFrame(height, width() - narrowest);
    m_layout->setContentsMargins(frame.Side, frame.Gap, frame.Side, frame.Bottom);
    m_layout->setSpacing(frame.Gap);
}

void frmPrint::Trace(const char* step) {
    if (m_tracing)
        Outside().ShowMessage({ApplicationTitle, step});
}

} // namespace Ledgrove
