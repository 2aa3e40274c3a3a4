#include "reports/windows/Printers.h"

#include <algorithm>
#include <cstdlib>
#include <cups/cups.h>
#include <memory>

namespace Ledgrove {

namespace {

constexpr const char* pdfPort = "FILE:";

struct DestinationList {
    DestinationList()
        : Count(cupsGetDests2(CUPS_HTTP_DEFAULT, &Items)) {}
    ~DestinationList() { cupsFreeDests(Count, Items); }
    DestinationList(const DestinationList&) = delete;
    DestinationList& operator=(const DestinationList&) = delete;

    cups_dest_t* Items = nullptr;
    int Count;
};

struct FreeDestination {
    void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, FreeDestination>;

struct FreeInfo {
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};
using DestinationInfo = std::unique_ptr<cups_dinfo_t, FreeInfo>;

/// Named options of a job.
class JobOptions {
public:
    JobOptions() = default;
    ~JobOptions() { cupsFreeOptions(m_count, m_options); }
    JobOptions(const JobOptions&) = delete;
    JobOptions& operator=(const JobOptions&) = delete;

    void Add(const char* name, const std::string& value) {
        m_count = cupsAddOption(name, value.c_str(), m_count, &m_options);
    }
    int Count() const { return m_count; }
    cups_option_t* Items() const { return m_options; }

private:
    int m_count = 0;
    cups_option_t* m_options = nullptr;
};

std::string Option(const cups_dest_t& destination, const char* name) {
    const char* value = cupsGetOption(name, destination.num_options, destination.options);
    return value ? value : "";
}

/// With the instance that a user may have set up on it, as lp writes it.
std::string NameOf(const cups_dest_t& destination) {
    std::string name = destination.name;
    return destination.instance ? name + '/' + destination.instance : name;
}

Destination Find(const std::string& printer) {
    const std::size_t slash = printer.find('/');
    const std::string name = printer.substr(0, slash);
    const std::string instance = slash == std::string::npos ? "" : printer.substr(slash + 1);
    return Destination(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.c_str(), instance.empty() ? nullptr : instance.c_str()));
}

std::optional<int> ResolutionOf(cups_dest_t& destination, cups_dinfo_t& info) {
    ipp_attribute_t* found =
        cupsFindDestDefault(CUPS_HTTP_DEFAULT, &destination, &info, "printer-resolution");
    if (!found)
        return std::nullopt;
    int down = 0;
    ipp_res_t unit = IPP_RES_PER_INCH;
    const int across = ippGetResolution(found, 0, &down, &unit);
    if (across <= 0)
        return std::nullopt;
    return unit == IPP_RES_PER_CM ? static_cast<int>(across * 2.54 + 0.5) : across;
}

Twips FromHundredthsOfMillimetre(int length) {
    return static_cast<Twips>(length * static_cast<double>(TwipsPerInch) / 2540 + 0.5);
}

std::optional<Paper> PaperOf(cups_dest_t& destination, cups_dinfo_t& info) {
    cups_size_t size{};
    if (!cupsGetDestMediaDefault(CUPS_HTTP_DEFAULT, &destination, &info, CUPS_MEDIA_FLAGS_DEFAULT, &size) ||
        size.width <= 0 || size.length <= 0)
        return std::nullopt;
    return Paper{size.media, FromHundredthsOfMillimetre(size.width), FromHundredthsOfMillimetre(size.length)};
}

} // namespace

std::vector<PrinterDevice> CupsServer::Devices() {
    const DestinationList destinations;
    std::vector<PrinterDevice> devices;
    for (int i = 0; i < destinations.Count; ++i) {
        const cups_dest_t& destination = destinations.Items[i];
        devices.push_back({NameOf(destination), Option(destination, "device-uri"),
                           Option(destination, "printer-make-and-model"), destination.is_default != 0});
    }
    return devices;
}

PrinterDetails CupsServer::Details(const std::string& printer) {
    const Destination destination = Find(printer);
    if (!destination)
        return {};
    const DestinationInfo info(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, destination.get()));
    if (!info)
        return {};
    return {ResolutionOf(*destination, *info), PaperOf(*destination, *info)};
}

std::string CupsServer::Send(const PrintJob& job) {
    const Destination destination = Find(job.Printer);
    if (!destination)
        return cupsLastErrorString();
    JobOptions options;
    // What the user has set up for this printer holds, but for what the window asks.
    for (int i = 0; i < destination->num_options; ++i)
        options.Add(destination->options[i].name, destination->options[i].value);
    options.Add("copies", std::to_string(job.Copies));
    options.Add("media", job.PaperName);
    // The pages have the paper's size; fitting them into the printable area would shrink them.
    options.Add("print-scaling", "none");
    const int id = cupsPrintFile2(CUPS_HTTP_DEFAULT, destination->name, job.PdfFile.c_str(),
                                  job.Title.c_str(), options.Count(), options.Items());
    return id > 0 ? std::string() : cupsLastErrorString();
}

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
