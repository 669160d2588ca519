#include "print_service/PrintService_PropDict.h"

#include "print_service/PrintServiceValueCoding_p.h"
#include "print_service/PrintServiceXml_p.h"

using PrintServiceValueCoding::ValueType;

void PrintService_PropDict::addItem(std::optional<PrintServiceValue> value) {
    if (value && PrintServiceValueIsPresent(*value)) item.push_back(std::move(*value));
}

std::shared_ptr<PrintService_PropDict> PrintService_PropDict::deserializeNode(xmlNode* node) {
    return deserializeNodeAs<PrintService_PropDict>(node);
}

void PrintService_PropDict::addAttributesToNode(xmlNode* node) const {
    PrintServiceXml::setSchemaType(node, "PrintService:PropDict");
    PrintServiceValueCoding::addCountAttribute(node, d);
}

void PrintService_PropDict::addElementsToNode(xmlNode* node) const {
    for (const PrintServiceValue& value : item) PrintServiceValueCoding::addValueElement(node, "item", value);
}

void PrintService_PropDict::deserializeAttributesFromNode(xmlNode* node) {
    if (auto count = PrintServiceValueCoding::integerAttribute(node, "d")) d = count;
}

void PrintService_PropDict::deserializeElementsFromNode(xmlNode* node) {
    PrintServiceXml::forEachChildElement(node, [this](xmlNode* child) {
        if (PrintServiceXml::isNamed(child, "item"))
            addItem(PrintServiceValueCoding::decodeValue(child, ValueType::PropKeyValue));
    });
}
