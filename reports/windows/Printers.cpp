#include "reports/windows/Printers.h"

#include <algorithm>

namespace Ledgrove {

namespace {

constexpr const char* pdfPort = "FILE:";

} // namespace

PrinterDevice PdfDevice() {
    return {"Print to PDF", pdfPort, "Ledgrove PDF", false};
}

PrinterDetails PdfDetails() {
    return {TwipsPerInch, std::nullopt};
}

bool IsPdf(const PrinterDevice& device) {
    return device.Port == pdfPort;
}

std::vector<PrinterDevice> AllDevices(PrintServer& server) {
    std::vector<PrinterDevice> devices = server.Devices();
    devices.push_back(PdfDevice());
    return devices;
}

std::size_t DefaultDevice(const std::vector<PrinterDevice>& devices) {
    const auto found =
        std::find_if(devices.begin(), devices.end(), [](const PrinterDevice& one) { return one.IsDefault; });
    return found == devices.end() ? 0 : static_cast<std::size_t>(found - devices.begin());
}

} // namespace Ledgrove
