#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "print_service/PrintServiceRequests.h"
#include "print_service/PrintServiceSoapCookie.h"
#include "print_service/PrintServiceSoapOperation.h"
#include "print_service/PrintServiceSoapResponse.h"

struct PrintServiceSoapTransfers;

/// The binding of the print service: the endpoint, the request settings and the cookie
/// engine that its calls share. Each call sends one HTTP POST (http only, unless https is
/// allowed) and waits at most defaultTimeout seconds.
class PrintServiceSoap : public PrintServiceSoapResponseDelegate {
public:
    /// The size limit of a reply unless set otherwise: 16 MiB.
    static constexpr std::size_t kDefaultMaximumReplySize = 16u << 20;

    /// A binding to address ("http://host:8888"); calls to an address that is no URL fail
    /// with a transport error.
    explicit PrintServiceSoap(std::string_view address);
    ~PrintServiceSoap() override;
    PrintServiceSoap(const PrintServiceSoap&) = delete;
    PrintServiceSoap& operator=(const PrintServiceSoap&) = delete;

    /// The endpoint as a URL (credentials in it are dropped).
    const std::string& address() const { return _address; }
    /// The host part of the endpoint ("127.0.0.1", "[fe80::1]"); "" when it is no URL.
    const std::string& host() const { return _host; }

    /// Request timeout in seconds; 30 unless set.
    double defaultTimeout() const { return _defaultTimeout; }
    void setDefaultTimeout(double seconds) { _defaultTimeout = seconds; }
    /// Whether transport errors are logged; false unless set.
    bool logXMLInOut() const { return _logXMLInOut; }
    void setLogXMLInOut(bool log) { _logXMLInOut = log; }
    /// Set when the running synchronous operation has reported completion.
    bool synchronousOperationComplete() const { return _synchronousOperationComplete; }
    /// Credentials offered to the server's first authentication challenge; kept in memory only.
    void setAuthUsername(std::string username);
    void setAuthPassword(std::string password);
    /// The largest reply accepted; a longer one fails the call.
    std::size_t maximumReplySize() const { return _maximumReplySize; }
    void setMaximumReplySize(std::size_t bytes) { _maximumReplySize = bytes; }
    /// Whether an https endpoint may be used; false unless set.
    bool allowsHTTPS() const { return _allowsHTTPS; }
    void setAllowsHTTPS(bool allows) { _allowsHTTPS = allows; }

    /// The cookies that the next request offers (those of the last reply, and added ones).
    std::vector<PrintServiceSoapCookie> cookies() const;
    /// Adds cookie to the cookies the next request offers.
    void addCookie(const PrintServiceSoapCookie& cookie);
    /// Replaces the cookies by those that a reply's header lines set.
    void replaceCookiesFromReply(const std::vector<std::string>& headerLines);

    // One synchronous and one asynchronous call per operation. The synchronous call answers
    // the response; the asynchronous one returns at once and reports to delegate while
    // processNetworkEvents runs.
    PrintServiceSoapResponse getStackerInfoListUsingParameters(const PrintService_getStackerInfoList& parameters);
    void getStackerInfoListAsyncUsingParameters(const PrintService_getStackerInfoList& parameters,
                                                PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getFeederInfoListUsingParameters(const PrintService_getFeederInfoList& parameters);
    void getFeederInfoListAsyncUsingParameters(const PrintService_getFeederInfoList& parameters,
                                               PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getJobFolderListUsingParameters(const PrintService_getJobFolderList& parameters);
    void getJobFolderListAsyncUsingParameters(const PrintService_getJobFolderList& parameters,
                                              PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getPrePostDeviceListUsingParameters(
        const PrintService_getPrePostDeviceList& parameters);
    void getPrePostDeviceListAsyncUsingParameters(const PrintService_getPrePostDeviceList& parameters,
                                                  PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getCmsSpotGetAllListDataUsingParameters(
        const PrintService_getCmsSpotGetAllListData& parameters);
    void getCmsSpotGetAllListDataAsyncUsingParameters(const PrintService_getCmsSpotGetAllListData& parameters,
                                                      PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getSpotColorAllInfoListDataUsingParameters(
        const PrintService_getSpotColorAllInfoListData& parameters);
    void getSpotColorAllInfoListDataAsyncUsingParameters(
        const PrintService_getSpotColorAllInfoListData& parameters, PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getColorSubstListDataUsingParameters(
        const PrintService_getColorSubstListData& parameters);
    void getColorSubstListDataAsyncUsingParameters(const PrintService_getColorSubstListData& parameters,
                                                   PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse GetJobResourceListUsingParameters(const PrintService_GetJobResourceList& parameters);
    void GetJobResourceListAsyncUsingParameters(const PrintService_GetJobResourceList& parameters,
                                                PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getJobResourceSetListUsingParameters(
        const PrintService_getJobResourceSetList& parameters);
    void getJobResourceSetListAsyncUsingParameters(const PrintService_getJobResourceSetList& parameters,
                                                   PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getCalibFileListUsingParameters(const PrintService_getCalibFileList& parameters);
    void getCalibFileListAsyncUsingParameters(const PrintService_getCalibFileList& parameters,
                                              PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getDensityAdjustProfileListUsingParameters(
        const PrintService_getDensityAdjustProfileList& parameters);
    void getDensityAdjustProfileListAsyncUsingParameters(
        const PrintService_getDensityAdjustProfileList& parameters, PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getUserTrcProfileListUsingParameters(
        const PrintService_getUserTrcProfileList& parameters);
    void getUserTrcProfileListAsyncUsingParameters(const PrintService_getUserTrcProfileList& parameters,
                                                   PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getFontListUsingParameters(const PrintService_getFontList& parameters);
    void getFontListAsyncUsingParameters(const PrintService_getFontList& parameters,
                                         PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getOutputProfileListUsingParameters(
        const PrintService_getOutputProfileList& parameters);
    void getOutputProfileListAsyncUsingParameters(const PrintService_getOutputProfileList& parameters,
                                                  PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getRGBInputProfileListUsingParameters(
        const PrintService_getRGBInputProfileList& parameters);
    void getRGBInputProfileListAsyncUsingParameters(const PrintService_getRGBInputProfileList& parameters,
                                                    PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getCMYKInputProfileListUsingParameters(
        const PrintService_getCMYKInputProfileList& parameters);
    void getCMYKInputProfileListAsyncUsingParameters(const PrintService_getCMYKInputProfileList& parameters,
                                                     PrintServiceSoapResponseDelegate* delegate);
    PrintServiceSoapResponse getDeviceLinkFileListUsingParameters(
        const PrintService_getDeviceLinkFileList& parameters);
    void getDeviceLinkFileListAsyncUsingParameters(const PrintService_getDeviceLinkFileList& parameters,
                                                   PrintServiceSoapResponseDelegate* delegate);

    /// Builds the HTTP request of operation with body and soapAction, and starts it.
    void sendHTTPCallUsingBody(const std::string& body, const std::string& soapAction,
                               PrintServiceSoapOperation& operation);
    /// Runs operation on the calling thread until it reports completion or nothing is left to wait for.
    PrintServiceSoapResponse performSynchronousOperation(PrintServiceSoapOperation& operation);
    /// Starts operation; the binding keeps it until it has finished.
    void performAsynchronousOperation(std::unique_ptr<PrintServiceSoapOperation> operation);
    /// Processes network events, waiting at most waitMilliseconds; false when no request is left.
    bool processNetworkEvents(int waitMilliseconds);

    void operationCompletedWithResponse(PrintServiceSoapOperation& operation,
                                        const PrintServiceSoapResponse& response) override;

private:
    void _dispatchFinishedTransfers();
    void _releaseFinishedOperation(PrintServiceSoapOperation& operation);

    std::string _address;
    std::string _host;
    double _defaultTimeout = 30.0;
    bool _logXMLInOut = false;
    bool _synchronousOperationComplete = false;
    std::optional<std::string> _authUsername;
    std::optional<std::string> _authPassword;
    std::size_t _maximumReplySize = kDefaultMaximumReplySize;
    bool _allowsHTTPS = false;
    std::unique_ptr<PrintServiceSoapTransfers> _transfers;
    std::vector<std::unique_ptr<PrintServiceSoapOperation>> _asynchronousOperations;
};
