#include "print_service/PrintServiceSoapOperation.h"

#include <libxml/tree.h>

#include <cstring>

#include "core/Diagnostics.h"
#include "print_service/PrintServiceReplyParser.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/PrintServiceSoapConnection_p.h"
#include "print_service/PrintServiceXml_p.h"
#include "print_service/SOAPFault.h"

namespace {

bool hasPrefix(const xmlNode* node, const char* prefix) {
    return node->ns && node->ns->prefix &&
           std::strcmp(reinterpret_cast<const char*>(node->ns->prefix), prefix) == 0;
}

}  // namespace

PrintServiceSoapOperation::PrintServiceSoapOperation(PrintServiceSoap& binding,
                                                     PrintServiceSoapResponseDelegate* delegate)
    : _binding(binding), _delegate(delegate) {}

PrintServiceSoapOperation::~PrintServiceSoapOperation() = default;

std::string PrintServiceSoapOperation::envelopeWithRequestElement(std::string_view requestElement) {
    std::string envelope =
        R"(<s:Envelope xmlns:s="http://schemas.xmlsoap.org/soap/envelope/">)"
        R"(<s:Body xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xmlns:xsd="http://www.w3.org/2001/XMLSchema">)";
    envelope += requestElement;
    envelope += "</s:Body></s:Envelope>";
    return envelope;
}

void PrintServiceSoapOperation::main() {
    _response = PrintServiceSoapResponse();
    _responseData.reset();
    _binding.sendHTTPCallUsingBody(envelopeText(), "", *this);
}

void PrintServiceSoapOperation::connectionDidReceiveResponse(const PrintServiceHTTPReply& reply) {
    _binding.replaceCookiesFromReply(reply.headerLines);
}

void PrintServiceSoapOperation::connectionDidReceiveData(std::string_view bytes) {
    if (bytes.empty()) return;
    if (!_responseData) _responseData.emplace();
    _responseData->append(bytes);
}

void PrintServiceSoapOperation::connectionDidReceiveAuthenticationChallenge() {
    connectionDidFailWithError({PrintServiceSoapError::kAuthenticationDomain, 0, "Authentication Error"});
}

void PrintServiceSoapOperation::connectionDidFailWithError(PrintServiceSoapError error) {
    if (_binding.logXMLInOut())
        ComQuorvantVelmar_Plugin::Diagnostics::log("###ResponseError:\n" + error.description());
    _response.error = std::move(error);
    if (_delegate) _delegate->operationCompletedWithResponse(*this, _response);
}

void PrintServiceSoapOperation::connectionDidFinishLoading() {
    if (!_responseData || !_delegate) return;
    if (PrintServiceReplyParser::Document document = PrintServiceReplyParser::parse(*_responseData)) {
        if (xmlNode* root = xmlDocGetRootElement(document.get())) _readBodies(root);
    } else {
        _response.error =
            PrintServiceSoapError{std::string(parseErrorDomain()), 1, "Errors while parsing returned XML"};
        // The delegate hears of a malformed reply here and once more below; completion
        // handling is written to take the repeat.
        _delegate->operationCompletedWithResponse(*this, _response);
    }
    _delegate->operationCompletedWithResponse(*this, _response);
}

// Each Body (in any namespace) replaces the parts of an earlier one. Its children are not
// filtered to elements first: text and comments simply match no name.
void PrintServiceSoapOperation::_readBodies(xmlNode* root) {
    for (xmlNode* body = root->children; body; body = body->next) {
        if (!PrintServiceXml::isElement(body) || !PrintServiceXml::isNamed(body, "Body")) continue;
        std::vector<std::shared_ptr<PrintServiceSerializable>> parts;
        for (xmlNode* part = body->children; part; part = part->next)
            if (auto object = _decodeBodyPart(part)) parts.push_back(std::move(object));
        _response.bodyParts = std::move(parts);
    }
}

// Only a fault written with the prefix "soap" counts as one: the service's faults always
// carry it, and clients that met others never read them as faults.
std::shared_ptr<PrintServiceSerializable> PrintServiceSoapOperation::_decodeBodyPart(xmlNode* part) const {
    if (PrintServiceXml::isNamed(part, responseElementName())) return deserializeResponseNode(part);
    if (hasPrefix(part, "soap") && PrintServiceXml::isNamed(part, "Fault"))
        return SOAPFault::deserializeNode(part);
    return nullptr;
}
