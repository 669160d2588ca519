#pragma once

#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace OstrinTest {

/// One request as the server read it.
struct RecordedRequest {
    std::string requestLine;
    /// "Name: value" lines in the order they came.
    std::vector<std::string> headerLines;
    std::string body;

    /// The value of the first header field called name (any case), or nothing.
    std::optional<std::string> header(std::string_view name) const;
    /// The names of the header fields in order.
    std::vector<std::string> headerNames() const;
};

/// One scripted answer.
struct CannedReply {
    std::string bytes;
    std::chrono::milliseconds delay{0};
    bool closeWithoutReply = false;
    /// After bytes, the connection is reset (RST) instead of closed.
    bool resetAfterBytes = false;
    /// After bytes, the server keeps sending filler until the client gives up.
    bool endlessAfterBytes = false;
    /// After bytes, the server waits this long before closing.
    std::chrono::milliseconds stallAfterBytes{0};

    /// A reply with the given status, "Content-Type: text/xml", extra header lines, body and
    /// "Connection: close".
    static CannedReply http(int status, std::string body, const std::vector<std::string>& extraHeaders = {});
    /// A 200 reply carrying body.
    static CannedReply soap(std::string body) { return http(200, std::move(body)); }
    /// Reads the request and closes the connection without a word.
    static CannedReply closing();
    /// Sends the head and the first half of a SOAP body of length 2 * half, then resets.
    static CannedReply resetHalfWay(std::size_t half);
    /// Sends a 200 head without a length, then an XML body that never ends.
    static CannedReply endless();
    /// Sends a 200 head announcing a body, then sends nothing for stall.
    static CannedReply stallingAfterTheHead(std::chrono::milliseconds stall);
};

/// The loopback address a server listens on.
enum class LoopbackFamily { IPv4, IPv6 };

/// A small HTTP server on 127.0.0.1 or ::1 (a free port) that answers each connection's request
/// with the next scripted reply and records what it read. It stops by itself after the last
/// reply or after its lifetime, and at the latest when destroyed.
class LoopbackHttpServer {
public:
    explicit LoopbackHttpServer(std::vector<CannedReply> script,
                                std::chrono::milliseconds lifetime = std::chrono::seconds(15),
                                LoopbackFamily family = LoopbackFamily::IPv4);
    ~LoopbackHttpServer();
    LoopbackHttpServer(const LoopbackHttpServer&) = delete;
    LoopbackHttpServer& operator=(const LoopbackHttpServer&) = delete;

    /// The port; 0 when the server could not listen.
    int port() const { return _port; }
    /// "http://127.0.0.1:<port>" (or "http://[::1]:<port>").
    std::string address() const;
    /// The requests read so far.
    std::vector<RecordedRequest> requests() const;

    /// A port on 127.0.0.1 where nothing listens (bound, then released).
    static int unusedPort();

private:
    void _serve(std::vector<CannedReply> script);
    int _accept();
    std::optional<RecordedRequest> _readRequest(int connection);
    void _answer(int connection, const CannedReply& reply);
    bool _send(int connection, const std::string& bytes);
    void _flood(int connection);
    void _wait(std::chrono::milliseconds pause);
    bool _shouldStop() const;

    LoopbackFamily _family;
    int _listener = -1;
    int _port = 0;
    std::chrono::steady_clock::time_point _deadline;
    std::atomic<bool> _stop{false};
    mutable std::mutex _mutex;
    std::vector<RecordedRequest> _requests;
    std::thread _thread;
};

}  // namespace OstrinTest
