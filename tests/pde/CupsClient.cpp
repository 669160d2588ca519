#include "CupsClient.h"

#include <cups/cups.h>

#include <regex>
#include <thread>

namespace OstrinTest {
namespace {

std::string valueText(ipp_attribute_t* attribute, int index) {
    switch (ippGetValueTag(attribute)) {
        case IPP_TAG_INTEGER:
        case IPP_TAG_ENUM: return std::to_string(ippGetInteger(attribute, index));
        case IPP_TAG_BOOLEAN: return ippGetBoolean(attribute, index) ? "true" : "false";
        default:
            if (const char* text = ippGetString(attribute, index, nullptr)) return text;
            char buffer[4096];
            ippAttributeString(attribute, buffer, sizeof buffer);
            return buffer;
    }
}

}  // namespace

CupsClient::CupsClient(const CupsTestServer& server)
    : _server(server), _cupsServer("CUPS_SERVER", server.serverName()), _home("HOME", server.clientHome()) {}

void CupsClient::run(const std::function<void()>& work) { std::thread(work).join(); }

std::map<std::string, std::string> CupsClient::jobAttributes(int jobId) const {
    std::map<std::string, std::string> attributes;
    const std::string server = _server.serverName();
    const int port = std::stoi(server.substr(server.find(':') + 1));
    http_t* http = httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1,
                                5000, nullptr);
    if (!http) return attributes;
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const std::string uri = "ipp://" + server + "/jobs/" + std::to_string(jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, "root");
    ipp_t* response = cupsDoRequest(http, request, "/");
    for (ipp_attribute_t* attribute = ippFirstAttribute(response); attribute;
         attribute = ippNextAttribute(response)) {
        const char* name = ippGetName(attribute);
        if (!name) continue;
        std::string text;
        for (int index = 0; index < ippGetCount(attribute); ++index)
            text += (index ? "," : "") + valueText(attribute, index);
        attributes[name] = text;
    }
    ippDelete(response);
    httpClose(http);
    return attributes;
}

int CupsClient::lp(const std::string& arguments) const {
    const ShellResult result = runShell("lp " + arguments);
    std::smatch match;
    if (result.exitCode != 0 || !std::regex_search(result.output, match, std::regex("-([0-9]+) \\(")))
        return 0;
    return std::stoi(match[1]);
}

}  // namespace OstrinTest
