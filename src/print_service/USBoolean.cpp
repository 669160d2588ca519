#include "print_service/USBoolean.h"

#include "print_service/PrintServiceXml_p.h"

std::optional<USBoolean> USBoolean::fromString(std::string_view text) {
    if (text == "true") return USBoolean(true);
    if (text == "false") return USBoolean(false);
    return std::nullopt;
}

std::optional<USBoolean> USBoolean::deserializeNode(xmlNode* node) {
    return fromString(PrintServiceXml::textContent(node).view());
}

xmlNode* USBoolean::xmlNodeForDoc(xmlDoc* document, std::string_view elementName) const {
    return PrintServiceXml::textElement(document, elementName, stringValue(), "PrintService");
}
