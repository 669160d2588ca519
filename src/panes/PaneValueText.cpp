#include "panes/PaneValueText_p.h"

#include <charconv>

namespace ComQuorvantVelmar_Plugin::PaneValueText {

std::string textOfValue(const PlistValue& value) {
    if (const std::string* text = value.string()) return *text;
    if (const bool* flag = value.boolean()) return *flag ? "True" : "False";
    if (const std::int64_t* integer = value.integer()) return std::to_string(*integer);
    if (const double* real = value.real()) {
        char buffer[64];
        auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, *real);
        if (error == std::errc()) return std::string(buffer, end);
    }
    return {};
}

std::string textOfEntry(const PlistDictionary& dictionary, const std::string& key) {
    const PlistValue* value = dictionary.find(key);
    return value ? textOfValue(*value) : std::string();
}

}  // namespace ComQuorvantVelmar_Plugin::PaneValueText
