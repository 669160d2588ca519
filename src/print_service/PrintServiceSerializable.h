#pragma once

#include <memory>
#include <string_view>

struct _xmlDoc;
struct _xmlNode;

/// A type that the print service writes to and reads from XML: value types, requests,
/// responses and faults.
class PrintServiceSerializable {
public:
    virtual ~PrintServiceSerializable() = default;

    /// The type's name as the service's type resolution spells it ("PrintService_PropDict").
    virtual std::string_view typeName() const = 0;
    /// The namespace prefix of the type's elements; "PrintService" unless a type says otherwise.
    virtual std::string_view nsPrefix() const { return "PrintService"; }

    /// A new element elementName for document holding this object's attributes and elements.
    _xmlNode* xmlNodeForDoc(_xmlDoc* document, std::string_view elementName) const;
    /// Writes the object's attributes onto node; nothing for a type without attributes.
    virtual void addAttributesToNode(_xmlNode* node) const;
    /// Writes the object's fields as child elements of node.
    virtual void addElementsToNode(_xmlNode* node) const;

    /// Reads the object's attributes from node; absent attributes leave fields as they are.
    virtual void deserializeAttributesFromNode(_xmlNode* node);
    /// Reads the object's fields from the child elements of node.
    virtual void deserializeElementsFromNode(_xmlNode* node);

protected:
    /// A new object of type T read from node: its attributes, then its elements.
    template <class T>
    static std::shared_ptr<T> deserializeNodeAs(_xmlNode* node) {
        auto object = std::make_shared<T>();
        object->deserializeAttributesFromNode(node);
        object->deserializeElementsFromNode(node);
        return object;
    }
};
