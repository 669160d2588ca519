#include <charconv>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "CommandError.h"
#include "Commands.h"
#include "JsonIO.h"
#include "TsvField.h"
#include "print_service/WebServiceClient.h"

namespace OstrinFlowCommand {
namespace {

using ComQuorvantVelmar_Plugin::ServerRowList;
using ComQuorvantVelmar_Plugin::WebServiceClient;

// What the command line asks of the print server.
struct ServerQuery {
    std::string host;
    std::optional<int> port;
    int type = 0;
    int kind = 0;
    std::optional<std::string> resourceSet;
};

// Which options a list takes, and how the client fetches it.
struct ServerList {
    const char* name;
    std::function<std::optional<ServerRowList>(WebServiceClient&, const ServerQuery&)> fetch;
    bool takesType = false;
    bool takesKind = false;
};

const std::vector<ServerList>& serverLists() {
    static const std::vector<ServerList> lists = {
        {"stackers", [](auto& c, const auto& q) { return c.getStackerInfoList(q.host); }},
        {"feeders", [](auto& c, const auto& q) { return c.getFeederInfoList(q.host); }},
        {"devices", [](auto& c, const auto& q) { return c.getDeviceList(q.host); }},
        {"pre-post-devices", [](auto& c, const auto& q) { return c.getPrePostDeviceList(q.host); }},
        {"job-folders", [](auto& c, const auto& q) { return c.getJobFolderList(q.host); }},
        {"spot-colors", [](auto& c, const auto& q) { return c.getCmsSpotGetAllListData(q.host); }},
        {"spot-color-info", [](auto& c, const auto& q) { return c.getSpotColorAllInfoListData(q.host); }},
        {"color-subst", [](auto& c, const auto& q) { return c.getColorSubstList(q.host); }},
        {"job-resources",
         [](auto& c, const auto& q) {
             return q.resourceSet ? c.GetJobResourceListWithResourceSet(q.host, q.type, *q.resourceSet)
                                  : c.GetJobResourceList(q.host, q.type);
         },
         true},
        {"job-resource-sets", [](auto& c, const auto& q) { return c.getJobResourceSetList(q.host); }},
        {"calib-files", [](auto& c, const auto& q) { return c.getCalibFileList(q.host); }},
        {"density-profiles", [](auto& c, const auto& q) { return c.getDensityAdjustProfileList(q.host); }},
        {"trc-profiles", [](auto& c, const auto& q) { return c.getUserTrcProfileList(q.host); }},
        {"fonts", [](auto& c, const auto& q) { return c.getFontList(q.host); }},
        {"output-profiles", [](auto& c, const auto& q) { return c.getOutputProfileFileList(q.host, q.kind); },
         false, true},
        {"rgb-input-profiles", [](auto& c, const auto& q) { return c.getRGBInputProfileFileList(q.host); }},
        {"cmyk-input-profiles",
         [](auto& c, const auto& q) { return c.getCMYKInputProfileFileList(q.host, q.kind); }, false, true},
        {"device-link-files", [](auto& c, const auto& q) { return c.getDeviceLinkFileList(q.host); }},
    };
    return lists;
}

std::string listNames() {
    std::string names;
    for (const ServerList& list : serverLists()) names += std::string(names.empty() ? "" : ", ") + list.name;
    return names;
}

const ServerList& findList(const std::string& name) {
    if (name.empty()) throw UsageError("server needs a LIST (" + listNames() + ")");
    for (const ServerList& list : serverLists())
        if (name == list.name) return list;
    throw UsageError("unknown server list \"" + name + "\" (" + listNames() + ")");
}

std::optional<int> wholeNumber(std::string_view text) {
    int value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

int numberOption(const std::string& option, const std::string& text) {
    if (auto number = wholeNumber(text)) return *number;
    throw UsageError("--" + option + " takes a whole number, not \"" + text + "\"");
}

int portOf(const std::string& host, std::string_view text) {
    auto port = wholeNumber(text);
    if (!port || *port < 1 || *port > 65535) throw UsageError("--host " + host + " names no port from 1 to 65535");
    return *port;
}

// HOST, HOST:PORT, [IPv6] or [IPv6]:PORT; a bare IPv6 address (more than one ":") has no port.
void parseHost(const std::string& text, ServerQuery& query) {
    if (!WebServiceClient::isHostAddress(text))
        throw UsageError("--host \"" + text + "\" is no host name or address");
    if (text.front() == '[') {
        const std::size_t close = text.find(']');
        if (close == std::string::npos) throw UsageError("--host " + text + " lacks its closing \"]\"");
        query.host = text.substr(0, close + 1);
        const std::string rest = text.substr(close + 1);
        if (!rest.empty() && rest.front() != ':') throw UsageError("--host " + text + " has text after \"]\"");
        if (!rest.empty()) query.port = portOf(text, std::string_view(rest).substr(1));
        return;
    }
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos || text.find(':', colon + 1) != std::string::npos) {
        query.host = text;
        return;
    }
    query.host = text.substr(0, colon);
    query.port = portOf(text, std::string_view(text).substr(colon + 1));
}

void refuseOption(bool given, const char* option, const ServerList& list) {
    if (given) throw UsageError(std::string(option) + " does not apply to the list " + list.name);
}

ServerQuery takeQuery(ArgumentList& arguments, const ServerList*& list) {
    ServerQuery query;
    auto host = arguments.take("host");
    auto type = arguments.take("type");
    auto kind = arguments.take("kind");
    query.resourceSet = arguments.take("resource-set");
    list = &findList(arguments.takeFirstPositional());
    arguments.positionals(0, 0);
    if (!host) throw UsageError("server needs --host HOST");
    parseHost(*host, query);
    refuseOption(type && !list->takesType, "--type", *list);
    refuseOption(query.resourceSet && !list->takesType, "--resource-set", *list);
    refuseOption(kind && !list->takesKind, "--kind", *list);
    if (type) query.type = numberOption("type", *type);
    if (kind) query.kind = numberOption("kind", *kind);
    return query;
}

std::string serverName(const ServerQuery& query, const WebServiceClient& client) {
    return query.host + ":" + std::to_string(client.port());
}

// A call that ended without a usable reply becomes the command's failure.
void failOnError(const std::optional<ServerRowList>& rows, const WebServiceClient& client,
                 const ServerQuery& query) {
    const std::string server = "the print server " + serverName(query, client);
    if (!rows) throw CommandError(ExitUnreachable, server + " may not be contacted from this program");
    const auto& error = client.lastResponseError();
    if (!error) return;
    if (error->domain == PrintServiceSoapError::kResponseXMLDomain ||
        error->domain == PrintServiceSoapError::kSoapResponseXMLDomain)
        throw CommandError(ExitInput, server + " sent a reply that is not well-formed XML");
    throw CommandError(ExitUnreachable, "cannot reach " + server + ": " + error->localizedDescription);
}

void printRows(const ServerRowList& rows, const std::string& format) {
    if (format == "json") {
        printJson(Json(rows));
        return;
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column) line += '\t';
            line += tsvField(row[column]);
        }
        std::printf("%s\n", line.c_str());
    }
}

}  // namespace

int serverCommand(const GlobalOptions& options, ArgumentList& arguments) {
    const ServerList* list = nullptr;
    const ServerQuery query = takeQuery(arguments, list);
    const std::string format = options.formatAmong({"tsv", "json"});
    WebServiceClient client;
    if (query.port) client.setPort(*query.port);
    const std::optional<ServerRowList> rows = list->fetch(client, query);
    failOnError(rows, client, query);
    printRows(*rows, format);
    return ExitSuccess;
}

}  // namespace OstrinFlowCommand
