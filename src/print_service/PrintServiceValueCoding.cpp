#include "print_service/PrintServiceValueCoding_p.h"

#include <charconv>
#include <string>
#include <utility>

#include "print_service/PrintServiceNamespaces.h"
#include "print_service/PrintServiceXml_p.h"
#include "print_service/PrintService_PropArray.h"
#include "print_service/PrintService_PropDict.h"
#include "print_service/PrintService_PropKeyValue.h"
#include "print_service/USGlobals.h"

bool PrintServiceValueIsPresent(const PrintServiceValue& value) {
    return std::visit(
        [](const auto& held) {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::string>)
                return true;
            else
                return held != nullptr;
        },
        value);
}

namespace PrintServiceValueCoding {
namespace {

using PrintServiceXml::NodeText;

constexpr std::pair<std::string_view, ValueType> kValueTypeNames[] = {
    {"PrintService_PropDict", ValueType::PropDict},
    {"PrintService_PropArray", ValueType::PropArray},
    {"PrintService_PropKeyValue", ValueType::PropKeyValue},
};

// The value type whose class name is prefix + "_" + local, compared piece by piece so that
// no name is assembled for every typed element of a large reply.
ValueType typeNamed(std::string_view prefix, std::string_view local) {
    for (const auto& [name, type] : kValueTypeNames)
        if (name.size() == prefix.size() + 1 + local.size() && name.starts_with(prefix) &&
            name[prefix.size()] == '_' && name.ends_with(local))
            return type;
    return ValueType::None;
}

ValueType typeNamed(std::string_view className) {
    for (const auto& [name, type] : kValueTypeNames)
        if (name == className) return type;
    return ValueType::None;
}

// Whether a type attribute could name a value type at all, judged by its local part alone.
// A "val" of a large reply is nearly always "xsd:string" or the like: it is read as text
// without looking its prefix up.
bool mayNameValueType(std::string_view type) {
    const std::size_t colon = type.find(':');
    if (colon == std::string_view::npos) return typeNamed(type) != ValueType::None;
    std::string_view local = type.substr(colon + 1);
    local = local.substr(0, local.find(':'));
    return typeNamed("PrintService", local) != ValueType::None;
}

}  // namespace

ValueType resolvedType(const xmlNode* node, ValueType declared) {
    std::optional<NodeText> type =
        PrintServiceXml::attributeValue(node, "type", PrintServiceNamespaces::kSchemaInstance);
    if (!type) return declared;
    const std::string_view text = type->view();
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return typeNamed(text);
    const std::string prefix(text.substr(0, colon));
    std::string_view local = text.substr(colon + 1);
    local = local.substr(0, local.find(':'));
    xmlNs* space = xmlSearchNs(node->doc, const_cast<xmlNode*>(node), PrintServiceXml::xml(prefix.c_str()));
    // A prefix nobody declared says nothing about the type: the declared class serves.
    if (!space || !space->href) return declared;
    const std::string* classPrefix =
        USGlobals::sharedInstance().prefixForNamespace(reinterpret_cast<const char*>(space->href));
    return classPrefix ? typeNamed(*classPrefix, local) : ValueType::None;
}

std::optional<PrintServiceValue> decodeObject(xmlNode* node, ValueType declared) {
    if (declared == ValueType::String) {
        std::optional<NodeText> type =
            PrintServiceXml::attributeValue(node, "type", PrintServiceNamespaces::kSchemaInstance);
        if (!type || !mayNameValueType(type->view())) return std::nullopt;
    }
    switch (resolvedType(node, declared)) {
        case ValueType::PropDict:
            return PrintService_PropDict::deserializeNode(node);
        case ValueType::PropArray:
            return PrintService_PropArray::deserializeNode(node);
        case ValueType::PropKeyValue:
            return PrintService_PropKeyValue::deserializeNode(node);
        case ValueType::String:
        case ValueType::None:
            break;
    }
    return std::nullopt;
}

std::optional<PrintServiceValue> decodeValue(xmlNode* node, ValueType declared) {
    if (resolvedType(node, declared) != ValueType::String) return decodeObject(node, declared);
    NodeText text = PrintServiceXml::textContent(node);
    if (text.empty()) return std::nullopt;
    return PrintServiceValue(text.str());
}

std::optional<std::int32_t> integerAttribute(const xmlNode* node, const char* name) {
    std::optional<NodeText> text = PrintServiceXml::attributeValue(node, name, nullptr);
    if (!text) return std::nullopt;
    const std::string_view digits = text->view();
    std::int32_t value = 0;
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    return value;
}

void addValueElement(xmlNode* parent, std::string_view name, const PrintServiceValue& value) {
    if (!PrintServiceValueIsPresent(value)) return;
    xmlNode* child = nullptr;
    if (const std::string* text = PrintServiceValueString(value)) {
        child = PrintServiceXml::textElement(parent->doc, name, *text, "PrintService");
    } else {
        std::visit(
            [&](const auto& held) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(held)>, std::string>)
                    child = held->xmlNodeForDoc(parent->doc, name);
            },
            value);
    }
    xmlAddChild(parent, child);
}

void addCountAttribute(xmlNode* node, const std::optional<std::int32_t>& d) {
    if (!d) return;
    const std::string text = std::to_string(*d);
    xmlNewProp(node, PrintServiceXml::xml("d"), PrintServiceXml::xml(text.c_str()));
}

}  // namespace PrintServiceValueCoding
