#include "print_service/PrintServiceSoap.h"

#include <strings.h>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <set>

#include "print_service/PrintService.h"
#include "print_service/PrintServiceSoapConnection_p.h"

namespace {

constexpr int kEventWaitMilliseconds = 250;

void initializeLibcurl() {
    static std::once_flag initialized;
    std::call_once(initialized, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

struct Endpoint {
    std::string address;
    std::string host;
};

// The endpoint as libcurl reads it; user information in it is dropped, so no credential
// ever travels or reaches a log line by way of an address.
Endpoint parseEndpoint(std::string_view address) {
    Endpoint endpoint{std::string(address), {}};
    CURLU* url = curl_url();
    if (!url) return endpoint;
    if (curl_url_set(url, CURLUPART_URL, endpoint.address.c_str(), 0) == CURLUE_OK) {
        curl_url_set(url, CURLUPART_USER, nullptr, 0);
        curl_url_set(url, CURLUPART_PASSWORD, nullptr, 0);
        char* host = nullptr;
        char* full = nullptr;
        if (curl_url_get(url, CURLUPART_HOST, &host, 0) == CURLUE_OK) endpoint.host = host;
        if (curl_url_get(url, CURLUPART_URL, &full, 0) == CURLUE_OK) endpoint.address = full;
        curl_free(host);
        curl_free(full);
    }
    curl_url_cleanup(url);
    return endpoint;
}

void wipe(std::optional<std::string>& secret) {
    if (secret && !secret->empty()) ::explicit_bzero(secret->data(), secret->size());
    secret.reset();
}

// A short-lived handle on a binding's cookie engine, to read or rewrite its cookies.
class CookieEngineAccess {
public:
    explicit CookieEngineAccess(CURLSH* engine) : _easy(curl_easy_init()) {
        if (_easy) curl_easy_setopt(_easy, CURLOPT_SHARE, engine);
    }
    ~CookieEngineAccess() { curl_easy_cleanup(_easy); }
    CookieEngineAccess(const CookieEngineAccess&) = delete;
    CookieEngineAccess& operator=(const CookieEngineAccess&) = delete;

    std::vector<std::string> lines() const {
        std::vector<std::string> lines;
        curl_slist* list = nullptr;
        if (_easy && curl_easy_getinfo(_easy, CURLINFO_COOKIELIST, &list) == CURLE_OK)
            for (curl_slist* entry = list; entry; entry = entry->next) lines.emplace_back(entry->data);
        curl_slist_free_all(list);
        return lines;
    }
    void add(const std::string& line) {
        if (_easy) curl_easy_setopt(_easy, CURLOPT_COOKIELIST, line.c_str());
    }
    void clear() {
        if (_easy) curl_easy_setopt(_easy, CURLOPT_COOKIELIST, "ALL");
    }

private:
    CURL* _easy;
};

// The names of the cookies that "Set-Cookie" lines set; the engine itself has parsed them.
std::set<std::string, std::less<>> namesSetBy(const std::vector<std::string>& headerLines) {
    constexpr std::string_view field = "Set-Cookie:";
    std::set<std::string, std::less<>> names;
    for (std::string_view line : headerLines) {
        if (line.size() < field.size() || ::strncasecmp(line.data(), field.data(), field.size()) != 0) continue;
        line.remove_prefix(field.size());
        line = line.substr(0, line.find('='));
        while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
        while (!line.empty() && (line.back() == ' ' || line.back() == '\t')) line.remove_suffix(1);
        names.emplace(line);
    }
    return names;
}

}  // namespace

PrintServiceSoap::PrintServiceSoap(std::string_view address) {
    initializeLibcurl();
    PrintService::initialize();
    Endpoint endpoint = parseEndpoint(address);
    _address = std::move(endpoint.address);
    _host = std::move(endpoint.host);
    _transfers = std::make_unique<PrintServiceSoapTransfers>();
}

PrintServiceSoap::~PrintServiceSoap() {
    _asynchronousOperations.clear();
    _transfers.reset();
    wipe(_authUsername);
    wipe(_authPassword);
}

void PrintServiceSoap::setAuthUsername(std::string username) {
    wipe(_authUsername);
    _authUsername = std::move(username);
}

void PrintServiceSoap::setAuthPassword(std::string password) {
    wipe(_authPassword);
    _authPassword = std::move(password);
}

std::vector<PrintServiceSoapCookie> PrintServiceSoap::cookies() const {
    std::vector<PrintServiceSoapCookie> cookies;
    for (const std::string& line : CookieEngineAccess(_transfers->cookieEngine).lines())
        if (auto cookie = PrintServiceSoapCookie::fromCookieListLine(line)) cookies.push_back(std::move(*cookie));
    return cookies;
}

void PrintServiceSoap::addCookie(const PrintServiceSoapCookie& cookie) {
    CookieEngineAccess(_transfers->cookieEngine).add(cookie.cookieListLine());
}

// Each reply's cookies replace the binding's: the engine keeps only those the reply set.
void PrintServiceSoap::replaceCookiesFromReply(const std::vector<std::string>& headerLines) {
    const auto names = namesSetBy(headerLines);
    CookieEngineAccess engine(_transfers->cookieEngine);
    std::vector<std::string> kept;
    for (std::string& line : engine.lines()) {
        auto cookie = PrintServiceSoapCookie::fromCookieListLine(line);
        if (cookie && names.contains(cookie->name)) kept.push_back(std::move(line));
    }
    engine.clear();
    for (const std::string& line : kept) engine.add(line);
}

void PrintServiceSoap::sendHTTPCallUsingBody(const std::string& body, const std::string& soapAction,
                                             PrintServiceSoapOperation& operation) {
    PrintServiceSoapRequestSettings settings{_address,
                                             _host,
                                             body,
                                             soapAction,
                                             _defaultTimeout,
                                             _maximumReplySize,
                                             _allowsHTTPS,
                                             _transfers->cookieEngine,
                                             &_authUsername,
                                             &_authPassword};
    operation._urlConnection = std::make_unique<PrintServiceSoapConnection>(operation, settings);
    if (!operation._urlConnection->startIn(*_transfers)) {
        operation._urlConnection.reset();
        operation.connectionDidFailWithError(
            {PrintServiceSoapError::kTransportDomain, CURLE_FAILED_INIT, "The request could not be started"});
    }
}

PrintServiceSoapResponse PrintServiceSoap::performSynchronousOperation(PrintServiceSoapOperation& operation) {
    _synchronousOperationComplete = false;
    operation.main();
    while (!_synchronousOperationComplete && processNetworkEvents(kEventWaitMilliseconds)) {
    }
    return operation.response();
}

void PrintServiceSoap::performAsynchronousOperation(std::unique_ptr<PrintServiceSoapOperation> operation) {
    PrintServiceSoapOperation& started = *operation;
    _asynchronousOperations.push_back(std::move(operation));
    started.main();
    if (!started._urlConnection) _releaseFinishedOperation(started);
}

bool PrintServiceSoap::processNetworkEvents(int waitMilliseconds) {
    int running = 0;
    curl_multi_perform(_transfers->multi, &running);
    _dispatchFinishedTransfers();
    if (_transfers->attached == 0) return false;
    curl_multi_poll(_transfers->multi, nullptr, 0, waitMilliseconds, nullptr);
    return true;
}

void PrintServiceSoap::_dispatchFinishedTransfers() {
    int queued = 0;
    while (CURLMsg* message = curl_multi_info_read(_transfers->multi, &queued)) {
        if (message->msg != CURLMSG_DONE) continue;
        const CURLcode result = message->data.result;
        PrintServiceSoapConnection* connection = PrintServiceSoapConnection::of(message->easy_handle);
        if (!connection) continue;
        PrintServiceSoapOperation& operation = connection->operation();
        connection->didComplete(result);
        _releaseFinishedOperation(operation);
    }
}

void PrintServiceSoap::_releaseFinishedOperation(PrintServiceSoapOperation& operation) {
    std::erase_if(_asynchronousOperations, [&](const auto& kept) { return kept.get() == &operation; });
}

void PrintServiceSoap::operationCompletedWithResponse(PrintServiceSoapOperation&,
                                                      const PrintServiceSoapResponse&) {
    _synchronousOperationComplete = true;
}
