#pragma once

#include <libxml/tree.h>

#include <cstdint>
#include <optional>
#include <string_view>

#include "print_service/PrintServiceValue.h"

// How the print service's values are read from and written to elements.
namespace PrintServiceValueCoding {

/// The type an element decodes as.
enum class ValueType { None, String, PropDict, PropArray, PropKeyValue };

/// The type node decodes as: the one its schema instance "type" attribute names, resolved
/// through USGlobals' namespace table, or declared when it has no such attribute (or names
/// a prefix that is not declared). None when the name resolves to no value type.
ValueType resolvedType(const xmlNode* node, ValueType declared);
/// node decoded as resolvedType(node, declared); nothing for None or a string without text.
std::optional<PrintServiceValue> decodeValue(xmlNode* node, ValueType declared);
/// node decoded as an object (dictionary, array or item); nothing when it resolves to a
/// string or to no value type.
std::optional<PrintServiceValue> decodeObject(xmlNode* node, ValueType declared);

/// The decimal integer of the attribute name, or nothing when absent or not a number.
std::optional<std::int32_t> integerAttribute(const xmlNode* node, const char* name);
/// Writes value as element name under parent ("item", "val").
void addValueElement(xmlNode* parent, std::string_view name, const PrintServiceValue& value);
/// Writes the "d" attribute when it is set.
void addCountAttribute(xmlNode* node, const std::optional<std::int32_t>& d);

}  // namespace PrintServiceValueCoding
