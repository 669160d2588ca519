#include "pde/SavedOptionsWriter.h"

#include <cups/cups.h>
#include <pwd.h>
#include <strings.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <sstream>

#include "core/AtomicFile.h"
#include "core/Diagnostics.h"
#include "core/FileUtil.h"
#include "pde/CupsConnection_p.h"
#include "pde/PrintSettings.h"
#include "pde/PrintSettingsTicket.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::vector<CupsOptionText> optionsToSave(const PrintSettings& settings) {
    std::vector<CupsOptionText> options;
    std::string emptyNames;
    const std::string_view prefix = PrintSettingsTicket::customKeyPrefix;
    for (auto& option : settings.cupsOptions()) {
        if (!SavedOptionsWriter::isJobOption(option.first) || option.first == SavedOptionsWriter::emptyValuesKey())
            continue;
        if (!option.second.empty())
            options.push_back(std::move(option));
        else if (option.first.rfind(prefix, 0) == 0 && option.first.find(',') == std::string::npos)
            emptyNames += (emptyNames.empty() ? "" : ",") + option.first.substr(prefix.size());
    }
    if (!emptyNames.empty()) options.emplace_back(SavedOptionsWriter::emptyValuesKey(), emptyNames);
    return options;
}

void replaceOptions(cups_dest_t& destination, const std::vector<CupsOptionText>& options) {
    cupsFreeOptions(destination.num_options, destination.options);
    destination.num_options = 0;
    destination.options = nullptr;
    for (const auto& [name, value] : options)
        destination.num_options =
            cupsAddOption(name.c_str(), value.c_str(), destination.num_options, &destination.options);
}

// libcups leaves out options equal to the queue's own values, ignoring case, and reads
// the queue's value back in their place.
bool readsBack(http_t* http, const std::string& queue, const std::vector<CupsOptionText>& options) {
    cups_dest_t* destination = cupsGetNamedDest(http, queue.c_str(), nullptr);
    if (!destination) return false;
    bool allThere = true;
    for (const auto& [name, value] : options) {
        const char* saved = cupsGetOption(name.c_str(), destination->num_options, destination->options);
        if (!saved || ::strcasecmp(saved, value.c_str()) != 0) allThere = false;
    }
    cupsFreeDests(1, destination);
    return allThere;
}

// Done once libcups has written the file, whatever it wrote; Failed when it wrote nothing.
HostOutcome setDestinationOptions(const CupsConnection& connection, const std::string& queue,
                                  const std::vector<CupsOptionText>& options, const std::string& what) {
    http_t* http = connection.http();
    cups_dest_t* destinations = nullptr;
    const int count = cupsGetDests2(http, &destinations);
    const bool reached = cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE && !connection.lostServer();
    cups_dest_t* destination = reached ? cupsGetDest(queue.c_str(), nullptr, count, destinations) : nullptr;
    HostOutcome outcome =
        !reached      ? connection.failure(what, queue)
        : destination ? HostOutcome::done()
                      : HostOutcome::failure(HostOutcome::Status::InputError, what + ": no queue named " + queue);
    if (destination) {
        replaceOptions(*destination, options);
        if (cupsSetDests2(http, count, destinations) != 0) outcome.status = HostOutcome::Status::Failed;
    }
    cupsFreeDests(count, destinations);
    return outcome;
}

// Without a previous file, whatever libcups left behind is removed.
void putBack(const std::string& path, const std::optional<std::string>& previous) {
    std::error_code error;
    const bool restored = previous ? AtomicFile::write(path, *previous)
                                   : std::filesystem::remove(path, error) || !error;
    if (!restored)
        Diagnostics::logf("### the previous saved options could not be put back at %s", path.c_str());
}

}  // namespace

bool SavedOptionsWriter::isJobOption(std::string_view name) {
    return name != "device-uri" && name != "auth-info-required" && name != "marker-change-time" &&
           name.rfind("printer-", 0) != 0;
}

std::string SavedOptionsWriter::emptyValuesKey() { return PrintSettingsTicket::customKey("SavedEmptyValues"); }

void SavedOptionsWriter::readSavedOption(PrintSettings& settings, const std::string& name, const std::string& value) {
    if (name != emptyValuesKey()) {
        settings.setValue(name, value);
        return;
    }
    std::istringstream names(value);
    for (std::string empty; std::getline(names, empty, ',');)
        if (!empty.empty()) settings.setValue(PrintSettingsTicket::customKey(empty), std::string());
}

std::string SavedOptionsWriter::lpoptionsPath() {
    std::string home;
    if (const char* variable = std::getenv("HOME")) home = variable;
    else if (const passwd* user = ::getpwuid(::getuid())) home = user->pw_dir;
    return home.empty() ? std::string() : home + "/.cups/lpoptions";
}

HostOutcome SavedOptionsWriter::write(const std::string& queue, const PrintSettings& settings) {
    const std::string what = "saving the options of " + queue;
    const std::string path = lpoptionsPath();
    const std::optional<std::string> previous = FileUtil::readAll(path);
    const CupsConnection connection;
    if (!connection.http()) return CupsConnection::unreachable(what);
    const std::vector<CupsOptionText> options = optionsToSave(settings);
    const HostOutcome outcome = setDestinationOptions(connection, queue, options, what);
    if (outcome.status == HostOutcome::Status::Done && readsBack(connection.http(), queue, options))
        return outcome;
    if (outcome.status != HostOutcome::Status::Done && outcome.status != HostOutcome::Status::Failed)
        return outcome;
    putBack(path, previous);
    Diagnostics::logf("### saved options of %s not written: %s", queue.c_str(), cupsLastErrorString());
    return HostOutcome::failure(HostOutcome::Status::Failed, what + ": " + path + " could not be written");
}

}  // namespace ComQuorvantVelmar_Plugin
