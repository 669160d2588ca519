#pragma once

#include <cups/cups.h>

#include <string>

#include "pde/HostOutcome.h"

namespace ComQuorvantVelmar_Plugin {

/// A connection to the cupsd that libcups uses on this thread (CUPS_SERVER, else the
/// local one), closed with the object. libcups reports a server that is down as an
/// internal error on some calls, so the hosts connect first and know which it was. A
/// request on it waits at most the reply timeout for cupsd: a cupsd that accepts and
/// then falls silent must not hold the dialog or the command.
class CupsConnection {
public:
    /// Seconds a request waits for cupsd's reply before it fails.
    static constexpr double DefaultReplyTimeout = 30;

    CupsConnection();
    ~CupsConnection();
    CupsConnection(const CupsConnection&) = delete;
    CupsConnection& operator=(const CupsConnection&) = delete;

    /// The connection, or nullptr when cupsd cannot be reached.
    http_t* http() const { return _http; }

    /// Whether the last request got no answer: cupsd closed, reset or fell silent. Once
    /// so, no further request may be sent: libcups would retry on a connection of its
    /// own that waits without limit.
    bool lostServer() const;
    /// The outcome for the last failure on this connection: Unreachable when the server
    /// was lost, else as lastFailure.
    HostOutcome failure(const std::string& what, const std::string& queue) const;

    /// Replaces the reply timeout of connections made from now on (tests shorten it).
    static void setReplyTimeout(double seconds);
    /// "host:port" (or the socket path) of that cupsd.
    static std::string serverAddress();
    /// The Unreachable outcome; the message begins with what.
    static HostOutcome unreachable(const std::string& what);
    /// The outcome for libcups' last failure: Unreachable, InputError for an unknown queue,
    /// else Failed with libcups' reason; the message begins with what.
    static HostOutcome lastFailure(const std::string& what, const std::string& queue);

private:
    http_t* _http = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
