#include "pde/CupsQueueHost.h"

#include <cups/cups.h>
#include <unistd.h>

#include "pde/CupsConnection_p.h"
#include "pde/SavedOptionsWriter.h"
#include "ppd/QueuePpd.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

HostOutcome::Status statusOfFetch(QueuePpd::Status status) {
    return status == QueuePpd::Status::Unreachable ? HostOutcome::Status::Unreachable
                                                   : HostOutcome::Status::InputError;
}

std::optional<std::string> nameWithNulByte(const PrintSettings& settings) {
    for (const auto& [name, value] : settings.cupsOptions())
        if (value.find('\0') != std::string::npos) return name;
    return std::nullopt;
}

int submit(http_t* http, const std::string& queue, const PrintSettings& settings,
           const std::string& path, const std::string& title) {
    int count = 0;
    cups_option_t* options = nullptr;
    for (const auto& [name, value] : settings.cupsOptions())
        count = cupsAddOption(name.c_str(), value.c_str(), count, &options);
    const int jobId = cupsPrintFile2(http, queue.c_str(), path.c_str(), title.c_str(), count, options);
    cupsFreeOptions(count, options);
    return jobId;
}

// libcups reports a queue that is gone as an internal error: cupsd is asked for it, when
// it still answers.
HostOutcome failureToSubmit(const CupsConnection& connection, const std::string& queue, const std::string& what) {
    const HostOutcome failure = connection.failure(what, queue);
    if (connection.lostServer()) return failure;
    cups_dest_t* destination = cupsGetNamedDest(connection.http(), queue.c_str(), nullptr);
    if (!destination)
        return HostOutcome::failure(HostOutcome::Status::InputError, what + ": no queue named " + queue);
    cupsFreeDests(1, destination);
    return failure;
}

}  // namespace

CupsQueueHost::CupsQueueHost(std::string queue, std::unique_ptr<PpdFileExt> ppd)
    : _queue(std::move(queue)), _ppd(std::move(ppd)) {}

CupsQueueHost::Opening CupsQueueHost::open(const std::string& queue) {
    QueuePpd fetched = QueuePpd::fetch(queue);
    if (fetched.status != QueuePpd::Status::Fetched)
        return {nullptr, HostOutcome::failure(statusOfFetch(fetched.status),
                                              "queue " + queue + ": " + fetched.message)};
    std::unique_ptr<CupsQueueHost> host(new CupsQueueHost(queue, std::move(fetched.ppd)));
    const CupsConnection connection;
    if (!connection.http()) return {nullptr, CupsConnection::unreachable("queue " + queue)};
    if (!host->readDestination(connection)) return {nullptr, connection.failure("queue " + queue, queue)};
    return {std::move(host), HostOutcome::done()};
}

// The destination's options are the user's saved options over the queue's own defaults;
// the printer's description (state, URIs, make) is no job option and stays out.
bool CupsQueueHost::readDestination(const CupsConnection& connection) {
    cups_dest_t* destination = cupsGetNamedDest(connection.http(), _queue.c_str(), nullptr);
    if (!destination) return false;
    for (int index = 0; index < destination->num_options; ++index) {
        const cups_option_t& option = destination->options[index];
        if (std::string_view(option.name) == "device-uri") _deviceUri = option.value;
        if (SavedOptionsWriter::isJobOption(option.name))
            SavedOptionsWriter::readSavedOption(_printSettings, option.name, option.value);
    }
    cupsFreeDests(1, destination);
    return true;
}

bool CupsQueueHost::willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) {
    return markPpdChoice(_ppd.get(), _printSettings, option, choice);
}

HostOutcome CupsQueueHost::printFile(const std::string& path, const std::string& title) {
    const std::string what = "printing " + path + " on " + _queue;
    if (::access(path.c_str(), R_OK) != 0)
        return HostOutcome::failure(HostOutcome::Status::InputError, what + ": the file cannot be read");
    if (const auto name = nameWithNulByte(_printSettings))
        return HostOutcome::failure(HostOutcome::Status::InputError,
                                    what + ": the value of " + *name + " holds a NUL byte");
    const CupsConnection connection;
    if (!connection.http()) return CupsConnection::unreachable(what);
    const int jobId = submit(connection.http(), _queue, _printSettings, path, title);
    return jobId > 0 ? HostOutcome::done(jobId) : failureToSubmit(connection, _queue, what);
}

HostOutcome CupsQueueHost::saveDefaults() {
    if (const auto name = nameWithNulByte(_printSettings))
        return HostOutcome::failure(HostOutcome::Status::InputError,
                                    "saving the options of " + _queue + ": the value of " + *name +
                                        " holds a NUL byte");
    return SavedOptionsWriter::write(_queue, _printSettings);
}

}  // namespace ComQuorvantVelmar_Plugin
