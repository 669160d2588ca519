#include "settings_ui/SettingsText_p.h"

#include <cctype>
#include <cmath>
#include <charconv>
#include <strings.h>

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"

namespace ComQuorvantVelmar_Plugin::SettingsText {

std::string formatWithObjects(std::string_view format, std::initializer_list<std::string_view> arguments) {
    std::string result;
    auto next = arguments.begin();
    for (std::size_t position = 0; position < format.size(); ++position) {
        const bool directive = format[position] == '%' && position + 1 < format.size();
        if (directive && format[position + 1] == '@') {
            if (next != arguments.end()) result += *next++;
            ++position;
        } else if (directive && format[position + 1] == '%') {
            result += '%';
            ++position;
        } else {
            result += format[position];
        }
    }
    return result;
}

bool boolValue(const PlistValue* value) {
    if (!value) return false;
    if (const bool* flag = value->boolean()) return *flag;
    if (auto number = value->number()) return *number != 0;
    if (const std::string* text = value->string()) return ::strcasecmp(text->c_str(), "True") == 0;
    return false;
}

std::optional<std::string> textValue(const PlistValue* value) {
    if (!value) return std::nullopt;
    if (const std::string* text = value->string()) return *text;
    if (const bool* flag = value->boolean()) return std::string(*flag ? "True" : "False");
    if (const std::int64_t* integer = value->integer()) return std::to_string(*integer);
    if (const double* real = value->real()) {
        char buffer[64];
        auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, *real);
        if (error == std::errc()) return std::string(buffer, end);
    }
    return std::nullopt;
}

double numericValue(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && std::isspace(static_cast<unsigned char>(text[start]))) ++start;
    if (start < text.size() && text[start] == '+') ++start;
    double result = 0;
    auto [end, error] = std::from_chars(text.data() + start, text.data() + text.size(), result);
    (void)end;
    return error == std::errc() && !std::isnan(result) ? result : 0;
}

std::string fixedNumber(double value, int decimals) {
    char buffer[400];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(buffer, end) : std::string();
}

// Built element by element: an initialiser list of two values makes GCC 12 warn about
// the value type's storage in optimised builds.
PlistArray pairOf(std::string first, std::string second) {
    PlistArray pair;
    pair.reserve(2);
    pair.emplace_back(std::move(first));
    pair.emplace_back(std::move(second));
    return pair;
}

bool usesDecimalComma() {
    const std::string language = PreferredLanguages::first();
    for (const char* code : {"es", "de", "it", "fr"})
        if (language.find(code) != std::string::npos) return true;
    return false;
}

std::string localizedUIText(const Bundle* bundle, std::string_view key) {
    if (!bundle || key.empty()) return std::string(key);
    return localizedStringInBundle(*bundle, key, "UI");
}

}  // namespace ComQuorvantVelmar_Plugin::SettingsText
