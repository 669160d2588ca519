#include "print_service/PrintServiceSoapConnection_p.h"

#include <strings.h>

#include <string_view>

namespace {

constexpr const char* kUserAgent = "OstrinFlow/" OSTRIN_VERSION;

std::string_view withoutLineEnd(std::string_view line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
    return line;
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && ::strncasecmp(text.data(), prefix.data(), prefix.size()) == 0;
}

// libcurl reads 0 as "no limit": a request always has one, from a millisecond to a day.
long timeoutMilliseconds(double seconds) {
    const double milliseconds = seconds * 1000.0;
    if (!(milliseconds >= 1.0)) return 1;
    return milliseconds > 86'400'000.0 ? 86'400'000L : static_cast<long>(milliseconds);
}

}  // namespace

PrintServiceSoapConnection::PrintServiceSoapConnection(PrintServiceSoapOperation& operation,
                                                       const PrintServiceSoapRequestSettings& settings)
    : _operation(operation),
      _easy(curl_easy_init()),
      _body(settings.body),
      _maximumReplySize(settings.maximumReplySize) {
    if (_easy) _configure(settings);
}

PrintServiceSoapConnection::~PrintServiceSoapConnection() {
    _detach();
    curl_easy_cleanup(_easy);
    curl_slist_free_all(_headers);
}

void PrintServiceSoapConnection::_configure(const PrintServiceSoapRequestSettings& settings) {
    const char* protocols = settings.allowsHTTPS ? "http,https" : "http";
    curl_easy_setopt(_easy, CURLOPT_PRIVATE, this);
    curl_easy_setopt(_easy, CURLOPT_URL, settings.url.c_str());
    curl_easy_setopt(_easy, CURLOPT_PROTOCOLS_STR, protocols);
    curl_easy_setopt(_easy, CURLOPT_REDIR_PROTOCOLS_STR, protocols);
    curl_easy_setopt(_easy, CURLOPT_FOLLOWLOCATION, 0L);
    // The print server sits on the press's own network: never reach it through a proxy.
    curl_easy_setopt(_easy, CURLOPT_PROXY, "");
    curl_easy_setopt(_easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(_easy, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
    curl_easy_setopt(_easy, CURLOPT_TIMEOUT_MS, timeoutMilliseconds(settings.timeoutSeconds));
    curl_easy_setopt(_easy, CURLOPT_POST, 1L);
    curl_easy_setopt(_easy, CURLOPT_POSTFIELDS, _body.data());
    curl_easy_setopt(_easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(_body.size()));
    curl_easy_setopt(_easy, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(_maximumReplySize));
    curl_easy_setopt(_easy, CURLOPT_HEADERFUNCTION, &PrintServiceSoapConnection::receiveHeader);
    curl_easy_setopt(_easy, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(_easy, CURLOPT_WRITEFUNCTION, &PrintServiceSoapConnection::receiveData);
    curl_easy_setopt(_easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(_easy, CURLOPT_ERRORBUFFER, _errorText);
    // The binding's cookie engine: cookies of one binding are never seen by another.
    curl_easy_setopt(_easy, CURLOPT_SHARE, settings.cookieEngine);
    curl_easy_setopt(_easy, CURLOPT_COOKIEFILE, "");
    _configureHeaders(settings);
    _configureAuthentication(settings);
}

// The request's own header fields, in this order, after the cookie fields: User-Agent,
// SOAPAction, Content-Type, Content-Length, Host. libcurl's own Host, Accept and Expect
// fields are taken out so that the order holds.
void PrintServiceSoapConnection::_configureHeaders(const PrintServiceSoapRequestSettings& settings) {
    const std::string action =
        settings.soapAction.empty() ? std::string("SOAPAction;") : "SOAPAction: " + settings.soapAction;
    const bool ownHost = !settings.host.empty();
    const std::string fields[] = {
        ownHost ? "Host:" : "",
        "Accept:",
        "Expect:",
        std::string("User-Agent: ") + kUserAgent,
        action,
        "Content-Type: text/xml; charset=utf-8",
        "Content-Length: " + std::to_string(static_cast<unsigned long>(_body.size())),
        ownHost ? "Host: " + settings.host : "",
    };
    for (const std::string& field : fields)
        if (!field.empty()) _headers = curl_slist_append(_headers, field.c_str());
    curl_easy_setopt(_easy, CURLOPT_HTTPHEADER, _headers);
}

// Credentials, when the binding has them, answer the server's first Basic or Digest
// challenge; they stay in memory and are never logged.
void PrintServiceSoapConnection::_configureAuthentication(const PrintServiceSoapRequestSettings& settings) {
    if (!settings.username || !*settings.username) return;
    curl_easy_setopt(_easy, CURLOPT_HTTPAUTH, CURLAUTH_BASIC | CURLAUTH_DIGEST);
    curl_easy_setopt(_easy, CURLOPT_USERNAME, (*settings.username)->c_str());
    if (settings.password && *settings.password)
        curl_easy_setopt(_easy, CURLOPT_PASSWORD, (*settings.password)->c_str());
}

bool PrintServiceSoapConnection::startIn(PrintServiceSoapTransfers& transfers) {
    if (!_easy || curl_multi_add_handle(transfers.multi, _easy) != CURLM_OK) return false;
    _transfers = &transfers;
    ++transfers.attached;
    return true;
}

void PrintServiceSoapConnection::_detach() {
    if (!_transfers) return;
    curl_multi_remove_handle(_transfers->multi, _easy);
    --_transfers->attached;
    _transfers = nullptr;
}

PrintServiceSoapConnection* PrintServiceSoapConnection::of(CURL* easy) {
    void* connection = nullptr;
    curl_easy_getinfo(easy, CURLINFO_PRIVATE, &connection);
    return static_cast<PrintServiceSoapConnection*>(connection);
}

// Every reply head (an interim 100, a challenge, the final one) starts with its status line;
// the last complete head is the reply's.
std::size_t PrintServiceSoapConnection::receiveHeader(char* data, std::size_t size, std::size_t count,
                                                      void* self) {
    auto& connection = *static_cast<PrintServiceSoapConnection*>(self);
    const std::string_view line = withoutLineEnd(std::string_view(data, size * count));
    if (line.starts_with("HTTP/")) {
        connection._reply = PrintServiceHTTPReply();
        connection._replyHeadComplete = false;
        curl_easy_getinfo(connection._easy, CURLINFO_RESPONSE_CODE, &connection._reply.statusCode);
    } else if (line.empty()) {
        connection._replyHeadComplete = true;
        curl_easy_getinfo(connection._easy, CURLINFO_RESPONSE_CODE, &connection._reply.statusCode);
    } else {
        connection._reply.headerLines.emplace_back(line);
    }
    return size * count;
}

// Past the size limit the transfer is cut off: a reply that large is no list of the server.
std::size_t PrintServiceSoapConnection::receiveData(char* data, std::size_t size, std::size_t count, void* self) {
    auto& connection = *static_cast<PrintServiceSoapConnection*>(self);
    const std::size_t length = size * count;
    if (length > connection._maximumReplySize - connection._received) {
        connection._replyTooLarge = true;
        return 0;
    }
    connection._received += length;
    connection._operation.connectionDidReceiveData(std::string_view(data, length));
    return length;
}

void PrintServiceSoapConnection::didComplete(CURLcode result) {
    _detach();
    if (_replyHeadComplete) _operation.connectionDidReceiveResponse(_reply);
    if (result != CURLE_OK)
        _operation.connectionDidFailWithError(_transportError(result));
    else if (_isUnansweredChallenge())
        _operation.connectionDidReceiveAuthenticationChallenge();
    else
        _operation.connectionDidFinishLoading();
}

bool PrintServiceSoapConnection::_isUnansweredChallenge() const {
    if (_reply.statusCode != 401) return false;
    for (const std::string& line : _reply.headerLines)
        if (startsWithIgnoringCase(line, "WWW-Authenticate:")) return true;
    return false;
}

PrintServiceSoapError PrintServiceSoapConnection::_transportError(CURLcode result) const {
    PrintServiceSoapError error{PrintServiceSoapError::kTransportDomain, static_cast<long>(result), {}};
    if (_replyTooLarge || result == CURLE_FILESIZE_EXCEEDED)
        error.localizedDescription = "The reply exceeds " + std::to_string(_maximumReplySize) + " bytes";
    else
        error.localizedDescription = _errorText[0] ? _errorText : curl_easy_strerror(result);
    return error;
}
