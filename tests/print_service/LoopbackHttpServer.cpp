#include "print_service/LoopbackHttpServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace OstrinTest {
namespace {

constexpr int kSliceMilliseconds = 20;
constexpr std::size_t kLargestRequest = 4u << 20;

int listenOnLoopback(LoopbackFamily family, int& port) {
    sockaddr_storage storage{};
    socklen_t length = 0;
    if (family == LoopbackFamily::IPv6) {
        auto& address = reinterpret_cast<sockaddr_in6&>(storage);
        address.sin6_family = AF_INET6;
        address.sin6_addr = in6addr_loopback;
        length = sizeof address;
    } else {
        auto& address = reinterpret_cast<sockaddr_in&>(storage);
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        length = sizeof address;
    }
    auto* address = reinterpret_cast<sockaddr*>(&storage);
    int listener = ::socket(address->sa_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (listener < 0 || ::bind(listener, address, length) != 0 || ::listen(listener, 8) != 0 ||
        ::getsockname(listener, address, &length) != 0) {
        if (listener >= 0) ::close(listener);
        return -1;
    }
    port = ntohs(family == LoopbackFamily::IPv6 ? reinterpret_cast<sockaddr_in6&>(storage).sin6_port
                                                : reinterpret_cast<sockaddr_in&>(storage).sin_port);
    return listener;
}

bool waitReadable(int socket, int milliseconds) {
    pollfd entry{socket, POLLIN, 0};
    return ::poll(&entry, 1, milliseconds) > 0;
}

std::size_t contentLength(const std::vector<std::string>& headerLines) {
    for (const std::string& line : headerLines)
        if (::strncasecmp(line.c_str(), "Content-Length:", 15) == 0)
            return std::strtoul(line.c_str() + 15, nullptr, 10);
    return 0;
}

void splitHead(const std::string& head, RecordedRequest& request) {
    std::size_t start = 0;
    for (std::size_t end; (end = head.find("\r\n", start)) != std::string::npos; start = end + 2) {
        std::string line = head.substr(start, end - start);
        if (request.requestLine.empty())
            request.requestLine = line;
        else
            request.headerLines.push_back(line);
    }
}

}  // namespace

std::optional<std::string> RecordedRequest::header(std::string_view name) const {
    for (const std::string& line : headerLines) {
        std::size_t colon = line.find(':');
        if (colon != name.size() || ::strncasecmp(line.c_str(), name.data(), name.size()) != 0) continue;
        std::size_t value = line.find_first_not_of(' ', colon + 1);
        return value == std::string::npos ? std::string() : line.substr(value);
    }
    return std::nullopt;
}

std::vector<std::string> RecordedRequest::headerNames() const {
    std::vector<std::string> names;
    for (const std::string& line : headerLines) names.push_back(line.substr(0, line.find(':')));
    return names;
}

CannedReply CannedReply::http(int status, std::string body, const std::vector<std::string>& extraHeaders) {
    std::string bytes = "HTTP/1.1 " + std::to_string(status) + (status == 200 ? " OK" : " Status") + "\r\n";
    bytes += "Content-Type: text/xml; charset=utf-8\r\n";
    for (const std::string& line : extraHeaders) bytes += line + "\r\n";
    bytes += "Content-Length: " + std::to_string(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
    return CannedReply{std::move(bytes)};
}

CannedReply CannedReply::closing() {
    CannedReply reply;
    reply.closeWithoutReply = true;
    return reply;
}

CannedReply CannedReply::resetHalfWay(std::size_t half) {
    CannedReply reply{"HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nContent-Length: " + std::to_string(2 * half) +
                      "\r\n\r\n" + std::string(half, ' ')};
    reply.resetAfterBytes = true;
    return reply;
}

CannedReply CannedReply::endless() {
    CannedReply reply{"HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nConnection: close\r\n\r\n<?xml version=\"1.0\"?>"};
    reply.endlessAfterBytes = true;
    return reply;
}

CannedReply CannedReply::stallingAfterTheHead(std::chrono::milliseconds stall) {
    CannedReply reply{"HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nContent-Length: 400\r\n\r\n"};
    reply.stallAfterBytes = stall;
    return reply;
}

LoopbackHttpServer::LoopbackHttpServer(std::vector<CannedReply> script, std::chrono::milliseconds lifetime,
                                       LoopbackFamily family)
    : _family(family), _deadline(std::chrono::steady_clock::now() + lifetime) {
    _listener = listenOnLoopback(family, _port);
    if (_listener >= 0)
        _thread = std::thread([this, script = std::move(script)]() mutable { _serve(std::move(script)); });
}

LoopbackHttpServer::~LoopbackHttpServer() {
    _stop = true;
    if (_thread.joinable()) _thread.join();
}

std::string LoopbackHttpServer::address() const {
    return std::string(_family == LoopbackFamily::IPv6 ? "http://[::1]:" : "http://127.0.0.1:") +
           std::to_string(_port);
}

std::vector<RecordedRequest> LoopbackHttpServer::requests() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _requests;
}

int LoopbackHttpServer::unusedPort() {
    int port = 0;
    int listener = listenOnLoopback(LoopbackFamily::IPv4, port);
    if (listener >= 0) ::close(listener);
    return port;
}

bool LoopbackHttpServer::_shouldStop() const { return _stop || std::chrono::steady_clock::now() > _deadline; }

void LoopbackHttpServer::_serve(std::vector<CannedReply> script) {
    for (const CannedReply& reply : script) {
        int connection = _accept();
        if (connection < 0) break;
        if (auto request = _readRequest(connection)) {
            std::lock_guard<std::mutex> lock(_mutex);
            _requests.push_back(std::move(*request));
        }
        _answer(connection, reply);
        ::close(connection);
    }
    ::close(_listener);
}

int LoopbackHttpServer::_accept() {
    while (!_shouldStop())
        if (waitReadable(_listener, kSliceMilliseconds))
            return ::accept4(_listener, nullptr, nullptr, SOCK_CLOEXEC);
    return -1;
}

std::optional<RecordedRequest> LoopbackHttpServer::_readRequest(int connection) {
    std::string received;
    RecordedRequest request;
    std::size_t headEnd = std::string::npos;
    while (!_shouldStop() && received.size() < kLargestRequest) {
        if (headEnd != std::string::npos && received.size() >= headEnd + 4 + contentLength(request.headerLines)) {
            request.body = received.substr(headEnd + 4);
            return request;
        }
        if (!waitReadable(connection, kSliceMilliseconds)) continue;
        char buffer[8192];
        ssize_t count = ::recv(connection, buffer, sizeof buffer, 0);
        if (count <= 0) return std::nullopt;
        received.append(buffer, static_cast<std::size_t>(count));
        if (headEnd == std::string::npos && (headEnd = received.find("\r\n\r\n")) != std::string::npos)
            splitHead(received.substr(0, headEnd + 2), request);
    }
    return std::nullopt;
}

void LoopbackHttpServer::_answer(int connection, const CannedReply& reply) {
    _wait(reply.delay);
    if (reply.closeWithoutReply || _shouldStop()) return;
    if (!_send(connection, reply.bytes)) return;
    if (reply.endlessAfterBytes) _flood(connection);
    _wait(reply.stallAfterBytes);
    if (reply.resetAfterBytes) {
        // A zero linger time makes the close a reset, as a server that crashes mid-reply.
        linger reset{1, 0};
        ::setsockopt(connection, SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
    }
}

bool LoopbackHttpServer::_send(int connection, const std::string& bytes) {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        ssize_t count = ::send(connection, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0) return false;
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

// Sends element after element until the client closes the connection or the server stops.
void LoopbackHttpServer::_flood(int connection) {
    const std::string filler = [] {
        std::string text;
        while (text.size() < 65536) text += "<item>flood</item>";
        return text;
    }();
    std::size_t offset = 0;
    while (!_shouldStop()) {
        pollfd entry{connection, POLLOUT, 0};
        if (::poll(&entry, 1, kSliceMilliseconds) <= 0) continue;
        if (entry.revents & (POLLERR | POLLHUP)) return;
        ssize_t count = ::send(connection, filler.data() + offset, filler.size() - offset, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && errno != EAGAIN && errno != EWOULDBLOCK) return;
        if (count > 0) offset = (offset + static_cast<std::size_t>(count)) % filler.size();
    }
}

void LoopbackHttpServer::_wait(std::chrono::milliseconds pause) {
    for (auto until = std::chrono::steady_clock::now() + pause;
         !_shouldStop() && std::chrono::steady_clock::now() < until;)
        std::this_thread::sleep_for(std::chrono::milliseconds(kSliceMilliseconds));
}

}  // namespace OstrinTest
