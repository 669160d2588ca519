#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "print_service/PrintServiceSoapResponse.h"

class PrintServiceSoap;
class PrintServiceSoapOperation;
class PrintServiceSoapConnection;

/// Told when an operation has finished.
class PrintServiceSoapResponseDelegate {
public:
    virtual ~PrintServiceSoapResponseDelegate() = default;
    /// operation finished with response; after a malformed reply this comes twice.
    virtual void operationCompletedWithResponse(PrintServiceSoapOperation& operation,
                                                const PrintServiceSoapResponse& response) = 0;
};

/// The head of the reply that the transfer ended with.
struct PrintServiceHTTPReply {
    long statusCode = 0;
    /// Header lines in order, without the status line and without line ends.
    std::vector<std::string> headerLines;
};

/// One request in flight: sends its envelope through the binding and decodes the reply.
class PrintServiceSoapOperation {
public:
    PrintServiceSoapOperation(PrintServiceSoap& binding, PrintServiceSoapResponseDelegate* delegate);
    virtual ~PrintServiceSoapOperation();
    PrintServiceSoapOperation(const PrintServiceSoapOperation&) = delete;
    PrintServiceSoapOperation& operator=(const PrintServiceSoapOperation&) = delete;

    PrintServiceSoap& binding() const { return _binding; }
    PrintServiceSoapResponseDelegate* delegate() const { return _delegate; }
    const PrintServiceSoapResponse& response() const { return _response; }
    /// The reply body received so far; nothing until the first bytes arrive.
    const std::optional<std::string>& responseData() const { return _responseData; }

    /// The envelope wrapped around one request element, as every operation sends it.
    static std::string envelopeWithRequestElement(std::string_view requestElement);
    /// The envelope this operation sends.
    virtual std::string envelopeText() const = 0;
    /// The name of the reply's Body child that holds this operation's response.
    virtual std::string_view responseElementName() const = 0;

    /// Starts the operation: a fresh response, then the HTTP request through the binding.
    void main();

    /// The reply's head arrived: its cookies replace the binding's.
    void connectionDidReceiveResponse(const PrintServiceHTTPReply& reply);
    /// Reply bytes arrived.
    void connectionDidReceiveData(std::string_view bytes);
    /// A challenge is left that the credentials did not answer: the call fails.
    void connectionDidReceiveAuthenticationChallenge();
    /// The transfer failed: the error is logged (when the binding asks for it) and reported.
    void connectionDidFailWithError(PrintServiceSoapError error);
    /// The reply is complete: it is decoded and reported. Nothing happens without reply bytes.
    void connectionDidFinishLoading();

protected:
    /// This operation's response object read from node.
    virtual std::shared_ptr<PrintServiceSerializable> deserializeResponseNode(_xmlNode* node) const = 0;
    /// The error domain of a malformed reply.
    virtual std::string_view parseErrorDomain() const = 0;

private:
    friend class PrintServiceSoap;

    void _readBodies(_xmlNode* root);
    std::shared_ptr<PrintServiceSerializable> _decodeBodyPart(_xmlNode* part) const;

    PrintServiceSoap& _binding;
    PrintServiceSoapResponseDelegate* _delegate;
    PrintServiceSoapResponse _response;
    std::optional<std::string> _responseData;
    std::unique_ptr<PrintServiceSoapConnection> _urlConnection;
};
