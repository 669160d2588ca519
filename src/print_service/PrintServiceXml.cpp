#include "print_service/PrintServiceXml_p.h"

#include <cstring>

#include "print_service/PrintServiceNamespaces.h"

namespace PrintServiceXml {
namespace {

bool isText(const xmlNode* node) { return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE; }

bool inNamespace(const xmlAttr* attribute, const char* href) {
    if (!href) return true;
    return attribute->ns && attribute->ns->href &&
           std::strcmp(reinterpret_cast<const char*>(attribute->ns->href), href) == 0;
}

const xmlAttr* findAttribute(const xmlNode* node, const char* name, const char* href) {
    for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next)
        if (std::strcmp(reinterpret_cast<const char*>(attribute->name), name) == 0 && inNamespace(attribute, href))
            return attribute;
    return nullptr;
}

}  // namespace

NodeText textContent(const xmlNode* node) {
    const xmlNode* first = node->children;
    if (!first) return NodeText();
    // Nearly every value is one text node: read it in place instead of copying.
    if (!first->next && isText(first) && first->content)
        return NodeText(std::string_view(reinterpret_cast<const char*>(first->content)));
    xmlChar* content = xmlNodeGetContent(node);
    if (!content) return NodeText();
    std::string text(reinterpret_cast<const char*>(content));
    xmlFree(content);
    return NodeText(std::move(text));
}

std::optional<NodeText> attributeValue(const xmlNode* node, const char* name, const char* href) {
    const xmlAttr* attribute = findAttribute(node, name, href);
    if (!attribute) return std::nullopt;
    const xmlNode* value = attribute->children;
    if (!value) return NodeText();
    if (!value->next && value->type == XML_TEXT_NODE && value->content)
        return NodeText(std::string_view(reinterpret_cast<const char*>(value->content)));
    xmlChar* text = xmlNodeListGetString(node->doc, value, 1);
    NodeText result(std::string(text ? reinterpret_cast<const char*>(text) : ""));
    xmlFree(text);
    return result;
}

xmlNs* rootNamespace(xmlDoc* document, const char* prefix) {
    xmlNode* root = xmlDocGetRootElement(document);
    return root ? xmlSearchNs(document, root, xml(prefix)) : nullptr;
}

void setSchemaType(xmlNode* node, const char* typeName) {
    xmlNs* schemaInstance = node->doc ? rootNamespace(node->doc, "xsi") : nullptr;
    if (schemaInstance && std::strcmp(reinterpret_cast<const char*>(schemaInstance->href),
                                      PrintServiceNamespaces::kSchemaInstance) == 0) {
        xmlNewNsProp(node, schemaInstance, xml("type"), xml(typeName));
    } else {
        xmlNewProp(node, xml("xsi:type"), xml(typeName));
    }
}

xmlNode* textElement(xmlDoc* document, std::string_view name, std::string_view text, const char* prefix) {
    const std::string elementName(name);
    xmlNode* node = xmlNewDocNode(document, prefix ? rootNamespace(document, prefix) : nullptr,
                                  xml(elementName.c_str()), nullptr);
    xmlNodeAddContentLen(node, reinterpret_cast<const xmlChar*>(text.data()), static_cast<int>(text.size()));
    return node;
}

}  // namespace PrintServiceXml
