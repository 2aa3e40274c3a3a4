#include "reports/windows/HelpPrint.h"

#include "reports/windows/HelpPages.h"
#include "reports/windows/PrinterSend.h"
#include "ui/windows/FormGuard.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ledgrove {

namespace {

/// Asks for a printer, with "Print" and "Cancel".
class PrinterDialog : public QDialog {
public:
    PrinterDialog(const std::vector<PrinterDevice>& devices, int pageCount, QWidget& above)
        : QDialog(&above)
        , m_printers(new QComboBox) {
        setObjectName("HelpPrintDialog");
        setWindowTitle("Print Help");
        IdentifyByDescription(*m_printers, "cboHelpPrinter", "Printer");
        for (const PrinterDevice& device : devices)
            m_printers->addItem(QString::fromStdString(device.Name));
        m_printers->setCurrentIndex(static_cast<int>(DefaultDevice(devices)));
        m_printers->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_printers->setMinimumContentsLength(30);
        auto* layout = new QVBoxLayout(this);
        layout->setSpacing(12);
        layout->addWidget(
            TextLabel(QString("The whole help takes %1 on letter paper.")
                          .arg(pageCount == 1 ? "1 page" : QString("%1 pages").arg(pageCount))));
        auto* row = new QHBoxLayout;
        row->addWidget(MakeCaption("P&rinter:", m_printers));
        row->addWidget(m_printers, 1);
        layout->addLayout(row);
        layout->addStretch();
        layout->addLayout(MakeButtons());
        new FormGuard(*this);
    }

    std::size_t Chosen() const { return static_cast<std::size_t>(m_printers->currentIndex()); }

private:
    QLayout* MakeButtons() {
        QPushButton* print = MakeButton("bPrintHelpNow", "&Print");
        print->setDefault(true);
        QPushButton* cancel = MakeButton("bCancel", "&Cancel");
        connect(print, &QPushButton::clicked, this, &QDialog::accept);
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
        auto* row = new QHBoxLayout;
        row->addStretch();
        row->addWidget(print);
        row->addWidget(cancel);
        return row;
    }

    QComboBox* m_printers;
};

/// The message about a fault; "" if there was none or if no file was chosen.
QString PrintOn(const PrinterDevice& device, const HelpPages& pages, QWidget& above,
                const PrintOutside& machine) {
    if (!IsPdf(device))
        return SendToPrinter({"The help",
                              {device.Name, "Ledgrove Help", {}, Paper{}.Name, 1},
                              [&pages](const QString& file) { return pages.Write(file); },
                              {}},
                             machine.Server);
    const QString file = machine.ChoosePdf(above);
    return file.isEmpty() ? QString() : pages.Write(file);
}

} // namespace

void PrintHelpDocument(const QTextDocument& help, QWidget& above, Host& outside,
                       const PrintOutside& machine) {
    const HelpPages pages(help);
    const std::vector<PrinterDevice> devices = AllDevices(machine.Server);
    PrinterDialog dialog(devices, pages.Count(), above);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const PrinterDevice& device = devices[dialog.Chosen()];
    if (!IsPdf(device) && !MayPrint("The help", device.Name, machine.Server, outside))
        return;
    const QString fault = PrintOn(device, pages, above, machine);
    if (!fault.isEmpty())
        outside.ShowMessage({ApplicationTitle, fault.toStdString(), MessageIcon::Exclamation});
}

} // namespace Ledgrove
