#pragma once

#include <memory>
#include <string>
#include <variant>

class PrintService_PropDict;
class PrintService_PropArray;
class PrintService_PropKeyValue;

/// One value of the print service: a string, a dictionary, an array or a key/value item.
using PrintServiceValue =
    std::variant<std::string, std::shared_ptr<PrintService_PropDict>, std::shared_ptr<PrintService_PropArray>,
                 std::shared_ptr<PrintService_PropKeyValue>>;

/// The string that value holds, or nullptr when it holds an object.
inline const std::string* PrintServiceValueString(const PrintServiceValue& value) {
    return std::get_if<std::string>(&value);
}

/// The object of type T that value holds, or nullptr.
template <class T>
const T* PrintServiceValueObject(const PrintServiceValue& value) {
    const auto* object = std::get_if<std::shared_ptr<T>>(&value);
    return object ? object->get() : nullptr;
}

/// Whether value holds something: a string or a non-null object.
bool PrintServiceValueIsPresent(const PrintServiceValue& value);
