#pragma once

#include <curl/curl.h>

#include <cstddef>
#include <optional>
#include <string>

#include "print_service/PrintServiceSoapOperation.h"

/// A binding's transfers: libcurl's multi handle, the cookie engine its requests share, and
/// how many requests are in the multi handle.
struct PrintServiceSoapTransfers {
    CURLM* multi = curl_multi_init();
    CURLSH* cookieEngine = curl_share_init();
    int attached = 0;

    PrintServiceSoapTransfers() { curl_share_setopt(cookieEngine, CURLSHOPT_SHARE, CURL_LOCK_DATA_COOKIE); }
    ~PrintServiceSoapTransfers() {
        curl_multi_cleanup(multi);
        curl_share_cleanup(cookieEngine);
    }
    PrintServiceSoapTransfers(const PrintServiceSoapTransfers&) = delete;
    PrintServiceSoapTransfers& operator=(const PrintServiceSoapTransfers&) = delete;
};

/// How one request is sent; filled by the binding.
struct PrintServiceSoapRequestSettings {
    std::string url;
    std::string host;
    std::string body;
    std::string soapAction;
    double timeoutSeconds = 30.0;
    std::size_t maximumReplySize = 0;
    bool allowsHTTPS = false;
    CURLSH* cookieEngine = nullptr;
    const std::optional<std::string>* username = nullptr;
    const std::optional<std::string>* password = nullptr;
};

/// One HTTP exchange over libcurl; reports its events to the operation that owns it.
class PrintServiceSoapConnection {
public:
    PrintServiceSoapConnection(PrintServiceSoapOperation& operation,
                               const PrintServiceSoapRequestSettings& settings);
    ~PrintServiceSoapConnection();
    PrintServiceSoapConnection(const PrintServiceSoapConnection&) = delete;
    PrintServiceSoapConnection& operator=(const PrintServiceSoapConnection&) = delete;

    /// Adds the transfer to the binding's transfers; false when libcurl refuses it.
    bool startIn(PrintServiceSoapTransfers& transfers);
    /// Takes the finished transfer out of its multi handle and reports its end to the operation.
    void didComplete(CURLcode result);
    /// The operation whose request this is.
    PrintServiceSoapOperation& operation() const { return _operation; }
    /// The connection that easy belongs to, or nullptr.
    static PrintServiceSoapConnection* of(CURL* easy);

private:
    void _detach();
    static std::size_t receiveHeader(char* data, std::size_t size, std::size_t count, void* self);
    static std::size_t receiveData(char* data, std::size_t size, std::size_t count, void* self);
    void _configure(const PrintServiceSoapRequestSettings& settings);
    void _configureHeaders(const PrintServiceSoapRequestSettings& settings);
    void _configureAuthentication(const PrintServiceSoapRequestSettings& settings);
    PrintServiceSoapError _transportError(CURLcode result) const;
    bool _isUnansweredChallenge() const;

    PrintServiceSoapOperation& _operation;
    CURL* _easy = nullptr;
    PrintServiceSoapTransfers* _transfers = nullptr;
    curl_slist* _headers = nullptr;
    std::string _body;
    std::size_t _maximumReplySize = 0;
    std::size_t _received = 0;
    bool _replyTooLarge = false;
    PrintServiceHTTPReply _reply;
    bool _replyHeadComplete = false;
    char _errorText[CURL_ERROR_SIZE] = {};
};
