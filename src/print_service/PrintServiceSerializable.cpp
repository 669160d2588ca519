#include "print_service/PrintServiceSerializable.h"

#include <string>

#include "print_service/PrintServiceXml_p.h"

xmlNode* PrintServiceSerializable::xmlNodeForDoc(xmlDoc* document, std::string_view elementName) const {
    const std::string name(elementName);
    const std::string prefix(nsPrefix());
    xmlNode* node = xmlNewDocNode(document, PrintServiceXml::rootNamespace(document, prefix.c_str()),
                                  PrintServiceXml::xml(name.c_str()), nullptr);
    addAttributesToNode(node);
    addElementsToNode(node);
    return node;
}

void PrintServiceSerializable::addAttributesToNode(xmlNode*) const {}
void PrintServiceSerializable::addElementsToNode(xmlNode*) const {}
void PrintServiceSerializable::deserializeAttributesFromNode(xmlNode*) {}
void PrintServiceSerializable::deserializeElementsFromNode(xmlNode*) {}
