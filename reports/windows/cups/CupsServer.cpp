#include "reports/windows/cups/CupsServer.h"

#include <algorithm>
#include <cups/cups.h>
#include <cups/pwg.h>
#include <iterator>
#include <memory>
#include <string_view>

namespace Ledgrove {

namespace {

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

struct FreeAnswer {
    void operator()(ipp_t* answer) const { ippDelete(answer); }
};
using Answer = std::unique_ptr<ipp_t, FreeAnswer>;

/// The named options of a job.
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

/// The user's settings for a printer apply to each job, except those that the window sets: the pages already
/// have their size and orientation.
bool IsDecidedHere(std::string_view option) {
    constexpr std::string_view decided[] = {"PageSize", "media-col", "orientation-requested", "landscape",
                                            "fit-to-page"};
    return std::find(std::begin(decided), std::end(decided), option) != std::end(decided);
}

/// The printer's name, with the user's instance in the form that lp uses.
std::string NameOf(const cups_dest_t& destination) {
    std::string name = destination.name;
    return destination.instance ? name + '/' + destination.instance : name;
}

struct CloseConnection {
    void operator()(http_t* connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, CloseConnection>;

/// A new connection to the server, because the library's own may be left over from a server that has ended.
/// Null if the server does not answer.
Connection Connect() {
    constexpr int patience = 5000; // milliseconds, of a user who waits
    return Connection(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patience, nullptr));
}

Destination Find(const std::string& printer, http_t* connection = CUPS_HTTP_DEFAULT) {
    const std::size_t slash = printer.find('/');
    const std::string name = printer.substr(0, slash);
    const std::string instance = slash == std::string::npos ? "" : printer.substr(slash + 1);
    return Destination(
        cupsGetNamedDest(connection, name.c_str(), instance.empty() ? nullptr : instance.c_str()));
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

/// Finds a paper by any of its names; null for an unknown name.
const pwg_media_t* MediaNamed(const std::string& name) {
    if (name.empty())
        return nullptr;
    for (const auto find : {pwgMediaForPWG, pwgMediaForPPD, pwgMediaForLegacy}) {
        if (const pwg_media_t* media = find(name.c_str()))
            return media;
    }
    return nullptr;
}

std::string DefaultMediaName(cups_dest_t& destination, cups_dinfo_t& info) {
    // The user's choice for this printer comes before the printer's default. cupsGetDestMediaDefault would
    // give letter if the user has made no choice.
    for (const char* option : {"media", "PageSize"}) {
        // A tray may follow the size, as in "A4,Upper".
        const std::string chosen = Option(destination, option);
        if (!chosen.empty())
            return chosen.substr(0, chosen.find(','));
    }
    ipp_attribute_t* found = cupsFindDestDefault(CUPS_HTTP_DEFAULT, &destination, &info, "media");
    const char* name = found ? ippGetString(found, 0, nullptr) : nullptr;
    return name ? name : "";
}

std::optional<Paper> PaperOf(cups_dest_t& destination, cups_dinfo_t& info) {
    const pwg_media_t* media = MediaNamed(DefaultMediaName(destination, info));
    if (!media || media->width <= 0 || media->length <= 0)
        return std::nullopt;
    return Paper{media->pwg, FromHundredthsOfMillimetre(media->width),
                 FromHundredthsOfMillimetre(media->length)};
}

/// The words that the person who paused or closed the printer left; "" if there are only the server's usual
/// ones.
std::string StateMessage(http_t* connection, const cups_dest_t& destination) {
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0, "/printers/%s",
                     destination.name);
    ipp_t* const request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-state-message");
    const Answer answer(cupsDoRequest(connection, request, "/"));
    ipp_attribute_t* const found = ippFindAttribute(answer.get(), "printer-state-message", IPP_TAG_ZERO);
    const char* const message = found ? ippGetString(found, 0, nullptr) : nullptr;
    const std::string_view words = message ? message : "";
    return words == "Paused" || words == "Rejecting Jobs" ? std::string() : std::string(words);
}

/// Never empty, because empty means success.
std::string LastError() {
    const char* const reason = cupsLastErrorString();
    return reason && *reason ? reason : "the print service gave no reason";
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

PrinterCondition CupsServer::Condition(const std::string& printer) {
    const Connection connection = Connect();
    if (!connection)
        return {PrinterState::NoService, {}};
    const Destination destination = Find(printer, connection.get());
    if (!destination)
        return {PrinterState::Removed, {}};
    const bool accepts = Option(*destination, "printer-is-accepting-jobs") != "false";
    const bool isPaused = Option(*destination, "printer-state") == std::to_string(IPP_PSTATE_STOPPED);
    if (accepts && !isPaused)
        return {};
    return {accepts ? PrinterState::Paused : PrinterState::Refusing,
            StateMessage(connection.get(), *destination)};
}

std::string CupsServer::Send(const PrintJob& job) {
    const Destination destination = Find(job.Printer);
    if (!destination)
        return LastError();
    JobOptions options;
    for (int i = 0; i < destination->num_options; ++i) {
        const cups_option_t& option = destination->options[i];
        if (!IsDecidedHere(option.name))
            options.Add(option.name, option.value);
    }
    options.Add("copies", std::to_string(job.Copies));
    // Each copy comes out whole. Printers know the first option, the filters of driver-based queues the
    // second.
    options.Add("multiple-document-handling", "separate-documents-collated-copies");
    options.Add("Collate", "True");
    options.Add("media", job.PaperName);
    // The pages have the paper's size; fitting them to the printable area would shrink them.
    options.Add("print-scaling", "none");
    const int id = cupsPrintFile2(CUPS_HTTP_DEFAULT, destination->name, job.PdfFile.c_str(),
                                  job.Title.c_str(), options.Count(), options.Items());
    return id > 0 ? std::string() : LastError();
}

} // namespace Ledgrove
