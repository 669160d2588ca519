#include "print_service/PrintService_PropArray.h"

#include "print_service/PrintServiceValueCoding_p.h"
#include "print_service/PrintServiceXml_p.h"

using PrintServiceValueCoding::ValueType;

void PrintService_PropArray::addItem(std::optional<PrintServiceValue> value) {
    if (value && PrintServiceValueIsPresent(*value)) item.push_back(std::move(*value));
}

std::shared_ptr<PrintService_PropArray> PrintService_PropArray::deserializeNode(xmlNode* node) {
    return deserializeNodeAs<PrintService_PropArray>(node);
}

void PrintService_PropArray::addAttributesToNode(xmlNode* node) const {
    PrintServiceXml::setSchemaType(node, "PrintService:PropArray");
    PrintServiceValueCoding::addCountAttribute(node, d);
}

void PrintService_PropArray::addElementsToNode(xmlNode* node) const {
    for (const PrintServiceValue& value : item) PrintServiceValueCoding::addValueElement(node, "item", value);
}

void PrintService_PropArray::deserializeAttributesFromNode(xmlNode* node) {
    if (auto count = PrintServiceValueCoding::integerAttribute(node, "d")) d = count;
}

void PrintService_PropArray::deserializeElementsFromNode(xmlNode* node) {
    PrintServiceXml::forEachChildElement(node, [this](xmlNode* child) {
        if (PrintServiceXml::isNamed(child, "item"))
            addItem(PrintServiceValueCoding::decodeValue(child, ValueType::String));
    });
}
