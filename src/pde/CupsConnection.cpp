#include "pde/CupsConnection_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr int ConnectTimeoutMilliseconds = 30000;

double& replyTimeout() {
    static double seconds = CupsConnection::DefaultReplyTimeout;
    return seconds;
}

// Asked by libcups when the reply timeout has passed: stop waiting.
int stopWaiting(http_t*, void*) { return 0; }

}  // namespace

CupsConnection::CupsConnection()
    : _http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                         ConnectTimeoutMilliseconds, nullptr)) {
    if (_http) httpSetTimeout(_http, replyTimeout(), stopWaiting, nullptr);
}

bool CupsConnection::lostServer() const { return _http && httpError(_http) != 0; }

HostOutcome CupsConnection::failure(const std::string& what, const std::string& queue) const {
    return lostServer() ? unreachable(what) : lastFailure(what, queue);
}

void CupsConnection::setReplyTimeout(double seconds) { replyTimeout() = seconds; }

CupsConnection::~CupsConnection() {
    if (_http) httpClose(_http);
}

std::string CupsConnection::serverAddress() {
    std::string server = cupsServer();
    if (!server.empty() && server[0] != '/') server += ":" + std::to_string(ippPort());
    return server;
}

HostOutcome CupsConnection::unreachable(const std::string& what) {
    return HostOutcome::failure(HostOutcome::Status::Unreachable,
                                what + ": cupsd at " + serverAddress() + " cannot be reached");
}

HostOutcome CupsConnection::lastFailure(const std::string& what, const std::string& queue) {
    const ipp_status_t status = cupsLastError();
    if (status == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE) return unreachable(what);
    if (status == IPP_STATUS_ERROR_NOT_FOUND)
        return HostOutcome::failure(HostOutcome::Status::InputError, what + ": no queue named " + queue);
    return HostOutcome::failure(HostOutcome::Status::Failed, what + ": " + cupsLastErrorString());
}

}  // namespace ComQuorvantVelmar_Plugin
