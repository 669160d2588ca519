#pragma once

#include <libxml/tree.h>

#include <optional>
#include <string>
#include <string_view>

// Small readers and writers over libxml2 nodes shared by the print service's types.
namespace PrintServiceXml {

/// Text read from a node: a view into the document when it is one text node, else a copy.
class NodeText {
public:
    NodeText() = default;
    explicit NodeText(std::string_view view) : _view(view) {}
    explicit NodeText(std::string owned) : _owned(std::move(owned)), _isOwned(true) {}

    std::string_view view() const { return _isOwned ? std::string_view(_owned) : _view; }
    bool empty() const { return view().empty(); }
    std::string str() const { return std::string(view()); }

private:
    std::string _owned;
    std::string_view _view;
    bool _isOwned = false;
};

/// The node's name as text; "" for a node without one.
inline std::string_view nameOf(const xmlNode* node) {
    return node->name ? std::string_view(reinterpret_cast<const char*>(node->name)) : std::string_view();
}
/// Whether the node's local name is name.
inline bool isNamed(const xmlNode* node, std::string_view name) { return nameOf(node) == name; }
/// Whether node is an element.
inline bool isElement(const xmlNode* node) { return node->type == XML_ELEMENT_NODE; }

/// All descendant text of node (entities as the parser left them); "" when none.
NodeText textContent(const xmlNode* node);
/// The value of the attribute name (in the namespace href, or in any namespace when href is
/// null); nothing when the attribute is absent.
std::optional<NodeText> attributeValue(const xmlNode* node, const char* name, const char* href);

/// Calls action for each element child of node, in document order.
template <class Action>
void forEachChildElement(const xmlNode* node, Action&& action) {
    for (xmlNode* child = node->children; child; child = child->next)
        if (isElement(child)) action(child);
}

/// The namespace declared with prefix in the document's root element, or null.
xmlNs* rootNamespace(xmlDoc* document, const char* prefix);
/// Sets the schema instance "type" attribute of node to typeName ("PrintService:PropDict").
void setSchemaType(xmlNode* node, const char* typeName);
/// A new element name with text as its content (escaped), in the namespace of prefix.
xmlNode* textElement(xmlDoc* document, std::string_view name, std::string_view text, const char* prefix);
/// xmlChar view of text.
inline const xmlChar* xml(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

}  // namespace PrintServiceXml
