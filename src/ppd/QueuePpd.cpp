#include "ppd/QueuePpd.h"

#include <cups/cups.h>
#include <cups/ppd.h>
#include <unistd.h>

#include "pde/CupsConnection_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

QueuePpd failure(QueuePpd::Status status, std::string message) {
    QueuePpd result;
    result.status = status;
    result.message = std::move(message);
    return result;
}

QueuePpd unreachable() {
    return failure(QueuePpd::Status::Unreachable, "cupsd at " + CupsConnection::serverAddress() + " cannot be reached");
}

// A cupsd that answered may be asked whether the queue exists; one that was lost may not.
QueuePpd failureWithoutPpd(const CupsConnection& connection, const std::string& queue) {
    const std::string reason = cupsLastErrorString();
    if (connection.lostServer() || cupsLastError() == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE) return unreachable();
    cups_dest_t* destination = cupsGetNamedDest(connection.http(), queue.c_str(), nullptr);
    if (!destination) return failure(QueuePpd::Status::UnknownQueue, "no such queue");
    cupsFreeDests(1, destination);
    return failure(QueuePpd::Status::Unreadable, "the queue has no PPD (" + reason + ")");
}

// The saved options are marked over the defaults, as cupsd itself applies them to a job;
// entries that are no PPD option (copies, sides, ...) change nothing.
void markDestinationOptions(PpdFile& ppd, const CupsConnection& connection, const std::string& queue) {
    ppd.markDefaults();
    cups_dest_t* destination = cupsGetNamedDest(connection.http(), queue.c_str(), nullptr);
    if (!destination) return;
    for (int index = 0; index < destination->num_options; ++index) {
        const cups_option_t& option = destination->options[index];
        if (ppd.isExists(option.name, option.value)) ppd.markOption(option.name, option.value);
    }
    cupsFreeDests(1, destination);
}

}  // namespace

// Failures to connect show only in cupsGetPPD2's status: cupsGetNamedDest reports any
// failure as an unknown queue, so it is asked second.
QueuePpd QueuePpd::fetch(const std::string& queue) {
    const CupsConnection connection;
    if (!connection.http()) return unreachable();
    const char* temporaryPath = cupsGetPPD2(connection.http(), queue.c_str());
    // libcups keeps the path in a buffer its next call overwrites.
    const std::string path = temporaryPath ? temporaryPath : "";
    if (path.empty()) return failureWithoutPpd(connection, queue);
    std::string error;
    std::unique_ptr<PpdFileExt> ppd = PpdFileExt::initWithContentsOfFile(path, &error);
    ::unlink(path.c_str());
    if (!ppd) return failure(Status::Unreadable, "its PPD is malformed: " + error);
    markDestinationOptions(*ppd, connection, queue);
    QueuePpd result;
    result.status = Status::Fetched;
    result.ppd = std::move(ppd);
    return result;
}

}  // namespace ComQuorvantVelmar_Plugin
