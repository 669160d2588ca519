#pragma once

#include <string>

/// Why a call of the print service produced no reply to decode.
struct PrintServiceSoapError {
    /// The transport's errors: connection, timeout, refused protocol, oversized reply.
    static constexpr const char* kTransportDomain = "HTTPTransport";
    /// An authentication challenge that the credentials did not answer.
    static constexpr const char* kAuthenticationDomain = "Connection Authentication";
    /// A malformed reply of getStackerInfoList, getFeederInfoList and getJobFolderList.
    static constexpr const char* kResponseXMLDomain = "PrintServiceResponseXML";
    /// A malformed reply of every other operation.
    static constexpr const char* kSoapResponseXMLDomain = "PrintServiceSoapResponseXML";

    std::string domain;
    long code = 0;
    std::string localizedDescription;

    /// The error as one line: Error Domain=<domain> Code=<code> "<description>".
    std::string description() const {
        return "Error Domain=" + domain + " Code=" + std::to_string(code) + " \"" + localizedDescription + "\"";
    }
};
