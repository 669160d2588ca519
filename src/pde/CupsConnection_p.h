#pragma once

#include <cups/cups.h>

#include <string>

#include "pde/HostOutcome.h"

namespace ComQuorvantVelmar_Plugin {

/// A connection to the cupsd that libcups uses on this thread (CUPS_SERVER, else the
/// local one), closed with the object. libcups reports a server that is down as an
/// internal error on some calls, so the hosts connect first and know which it was.
class CupsConnection {
public:
    CupsConnection();
    ~CupsConnection();
    CupsConnection(const CupsConnection&) = delete;
    CupsConnection& operator=(const CupsConnection&) = delete;

    /// The connection, or nullptr when cupsd cannot be reached.
    http_t* http() const { return _http; }

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
