#pragma once

#include "reports/windows/PagePainter.h"
#include "reports/windows/PrintOutside.h"
#include "ui/windows/EntryDialog.h"

class QComboBox;
class QVBoxLayout;

namespace Ledgrove {

class NormalPlace;
class PreviewHeader;
class PreviewPane;
class PrinterBox;

struct PreviewParts {
    /// Writes the report to the open document; called for each composition.
    std::function<void(PrintDocument&)> WriteReport;
    const PrintOutside& Machine;
    const char* Title = "Summary Report";                    ///< of the window and of the print job
    PageOrientation Orientation = PageOrientation::Portrait; ///< to begin with
};

/// Shows the report in a preview and prints it from there. The document lives as long as the window.
class frmPrint : public EntryDialog {
    Q_OBJECT

public:
    /// The objects in `parts`, `session` and `outside` must outlive the window.
    frmPrint(PreviewParts parts, Session& session, Host& outside, QWidget* parent = nullptr);

    const PrintDocument& Document() const { return m_document; }

    /// Fills the pick lists, chooses a printer and composes the report. The constructor calls it.
    void Load();
    void InitPicklists();
    void LoadPrinters();
    void InitvsPrinter();
    /// Composes the report again.
    void RefreshPrintView();

    /// While tracing, each procedure shows its name in a message box. Loading ends the tracing.
    void SetTrace(bool on) { m_tracing = on; }

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    QLayout* MakeControlRow();
    void Connect();

    void ChangeZoom();
    void StepZoom(int step);
    bool ListDevices();
    void ReadPrintersAgain();
    void ChangePrinter();
    void ChangeOrientation();
    void ChangePage();
    void MaximizeOrRestore();
    void Print();
    Module1::EntryOutcome LeaveCopies();
    bool MayPrintNow();

    void ShowStatus();
    void ShowSize();
    void ShowPageButton();
    void ShowWindowButton();
    void LayOutControls();
    void Trace(const char* step);
    const PrinterDevice& Device() const { return m_devices[m_device]; }

    PreviewParts m_parts;
    FontMeasure m_measure;
    PrintDocument m_document;
    Field m_copies;
    std::vector<PrinterDevice> m_devices;
    std::size_t m_device = 0;
    PrinterDetails m_details; ///< of this device
    Paper m_paper;
    PageOrientation m_orientation = PageOrientation::Portrait;
    bool m_tracing = false;
    bool m_loading = false;
    bool m_previewMode = true;

    PreviewHeader* m_header;
    PreviewPane* m_preview;
    PrinterBox* m_printers;
    QComboBox* m_orientations;
    QComboBox* m_zooms;
    QVBoxLayout* m_layout = nullptr;
    QLayout* m_controlRow = nullptr;
    QPushButton* m_changePage = nullptr;
    QPushButton* m_maximize = nullptr;
    QPushButton* m_print = nullptr;
    NormalPlace* m_place = nullptr;
};

} // namespace Ledgrove
