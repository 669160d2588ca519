#include "print_service/PrintService_PropKeyValue.h"

#include "print_service/PrintServiceValueCoding_p.h"
#include "print_service/PrintServiceXml_p.h"

using PrintServiceValueCoding::ValueType;

std::map<std::string, std::string> PrintService_PropKeyValue::attributes() const {
    if (!key) return {};
    return {{"key", *key}};
}

std::shared_ptr<PrintService_PropKeyValue> PrintService_PropKeyValue::deserializeNode(xmlNode* node) {
    return deserializeNodeAs<PrintService_PropKeyValue>(node);
}

void PrintService_PropKeyValue::addAttributesToNode(xmlNode* node) const {
    PrintServiceXml::setSchemaType(node, "PrintService:PropKeyValue");
    if (key) xmlNewProp(node, PrintServiceXml::xml("key"), PrintServiceXml::xml(key->c_str()));
}

void PrintService_PropKeyValue::addElementsToNode(xmlNode* node) const {
    if (val) PrintServiceValueCoding::addValueElement(node, "val", *val);
}

void PrintService_PropKeyValue::deserializeAttributesFromNode(xmlNode* node) {
    if (auto text = PrintServiceXml::attributeValue(node, "key", nullptr)) key = text->str();
}

// Any child with text sets the value to that text, whatever the child is named; a "val"
// child that decodes to a dictionary, array or item then sets the object instead. So a
// scalar of any schema type ("xsd:int") arrives as its text, and servers rely on that.
// Deciding the object first spares reading the text of a nested structure.
void PrintService_PropKeyValue::deserializeElementsFromNode(xmlNode* node) {
    PrintServiceXml::forEachChildElement(node, [this](xmlNode* child) {
        if (PrintServiceXml::isNamed(child, "val")) {
            if (auto object = PrintServiceValueCoding::decodeObject(child, ValueType::String)) {
                val = std::move(object);
                return;
            }
        }
        PrintServiceXml::NodeText text = PrintServiceXml::textContent(child);
        if (!text.empty()) val = PrintServiceValue(text.str());
    });
}
