#include "print_service/PrintServiceSoap_envelope.h"

#include <libxml/tree.h>

#include "print_service/PrintServiceNamespaces.h"
#include "print_service/PrintServiceXml_p.h"

namespace {

using PrintServiceXml::xml;

void addSection(xmlNode* root, xmlNs* soap, const char* name,
                const PrintServiceSoap_envelope::Elements& elements) {
    if (elements.empty()) return;
    xmlNode* section = xmlNewChild(root, soap, xml(name), nullptr);
    for (const auto& [elementName, object] : elements)
        if (object) xmlAddChild(section, object->xmlNodeForDoc(root->doc, elementName));
}

}  // namespace

PrintServiceSoap_envelope& PrintServiceSoap_envelope::sharedInstance() {
    static PrintServiceSoap_envelope envelope;
    return envelope;
}

std::string PrintServiceSoap_envelope::serializedFormUsingHeaderElements(const Elements& headerElements,
                                                                         const Elements& bodyElements) const {
    xmlDoc* document = xmlNewDoc(xml("1.0"));
    xmlNode* root = xmlNewDocNode(document, nullptr, xml("Envelope"), nullptr);
    xmlDocSetRootElement(document, root);
    xmlNs* soap = xmlNewNs(root, xml(PrintServiceNamespaces::kSoapEnvelope), xml("s"));
    xmlSetNs(root, soap);
    xmlNewNs(root, xml(PrintServiceNamespaces::kSchemaInstance), xml("xsi"));
    xmlNewNs(root, xml(PrintServiceNamespaces::kSchema), xml("xsd"));
    xmlNewNs(root, xml(PrintServiceNamespaces::kPrintService), xml("PrintService"));
    addSection(root, soap, "Header", headerElements);
    addSection(root, soap, "Body", bodyElements);
    xmlChar* text = nullptr;
    int size = 0;
    xmlDocDumpMemory(document, &text, &size);
    std::string serialized(text ? reinterpret_cast<const char*>(text) : "",
                           text ? static_cast<std::size_t>(size) : 0);
    xmlFree(text);
    xmlFreeDoc(document);
    return serialized;
}
