#include "print_service/SOAPFault.h"

#include <cstring>
#include <string_view>

#include "print_service/PrintServiceNamespaces.h"
#include "print_service/PrintServiceXml_p.h"

namespace {

using PrintServiceXml::isNamed;
using PrintServiceXml::textContent;

bool inNamespace(const xmlNode* node, const char* href) {
    return node->ns && node->ns->href && std::strcmp(reinterpret_cast<const char*>(node->ns->href), href) == 0;
}

void readSoap11(SOAPFault& fault, xmlNode* node) {
    PrintServiceXml::forEachChildElement(node, [&](xmlNode* child) {
        if (isNamed(child, "faultcode"))
            fault.faultcode = textContent(child).str();
        else if (isNamed(child, "faultstring"))
            fault.faultstring = textContent(child).str();
        else if (isNamed(child, "faultactor"))
            fault.faultactor = textContent(child).str();
        else if (isNamed(child, "detail"))
            fault.detail = textContent(child).str();
    });
}

std::string firstValueText(xmlNode* code) {
    for (xmlNode* child = code->children; child; child = child->next)
        if (PrintServiceXml::isElement(child) && isNamed(child, "Value")) return textContent(child).str();
    return {};
}

void readSoap12(SOAPFault& fault, xmlNode* node) {
    PrintServiceXml::forEachChildElement(node, [&](xmlNode* child) {
        if (isNamed(child, "Code"))
            fault.faultcode = firstValueText(child);
        else if (isNamed(child, "Reason"))
            fault.faultstring = textContent(child).str();
        else if (isNamed(child, "Node"))
            fault.faultactor = textContent(child).str();
        else if (isNamed(child, "Detail"))
            fault.detail = textContent(child).str();
    });
}

void removeAll(std::string& text, std::string_view part) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
        text.erase(at, part.size());
}

}  // namespace

std::shared_ptr<SOAPFault> SOAPFault::deserializeNode(xmlNode* node) {
    auto fault = std::make_shared<SOAPFault>();
    if (inNamespace(node, PrintServiceNamespaces::kSoapEnvelope))
        readSoap11(*fault, node);
    else if (inNamespace(node, PrintServiceNamespaces::kSoap12Envelope))
        readSoap12(*fault, node);
    return fault;
}

std::string SOAPFault::simpleFaultString() const {
    std::string text = faultstring;
    removeAll(text, "System.Web.Services.Protocols.SoapException: ");
    if (std::size_t trace = text.find("\n   at "); trace != std::string::npos) text.erase(trace);
    return text;
}
