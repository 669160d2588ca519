#include <charconv>
#include <cmath>
#include <limits>

#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin::ConverterSupport {
namespace {

bool isBlank(char character) { return character == ' ' || (character >= '\t' && character <= '\r'); }

std::string_view withoutLeadingBlanks(std::string_view text) {
    std::size_t index = 0;
    while (index < text.size() && isBlank(text[index])) ++index;
    return text.substr(index);
}

int clampedToInt(long double value) {
    if (std::isnan(value)) return 0;
    if (value >= static_cast<long double>(std::numeric_limits<int>::max())) return std::numeric_limits<int>::max();
    if (value <= static_cast<long double>(std::numeric_limits<int>::min())) return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

}  // namespace

int integerOf(std::string_view text) {
    text = withoutLeadingBlanks(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    long long magnitude = 0;
    for (char character : text) {
        if (character < '0' || character > '9') break;
        magnitude = std::min(magnitude * 10 + (character - '0'), 1LL << 40);
    }
    return clampedToInt(static_cast<long double>(negative ? -magnitude : magnitude));
}

int integerOfValue(const PlistValue& value) {
    if (const auto* text = value.string()) return integerOf(*text);
    if (const auto* number = value.integer()) return clampedToInt(static_cast<long double>(*number));
    if (const auto* number = value.real()) return clampedToInt(std::trunc(*number));
    if (const auto* flag = value.boolean()) return *flag ? 1 : 0;
    return 0;
}

double doubleOf(std::string_view text) {
    text = withoutLeadingBlanks(text);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec != std::errc() || !std::isfinite(value)) return 0;
    return value;
}

std::string fixedText(double value, int decimals) {
    char text[400];
    const auto printed = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
    if (printed.ec != std::errc()) return "0";
    return std::string(text, printed.ptr);
}

int nearestInteger(float value) { return clampedToInt(std::round(static_cast<long double>(value))); }

std::optional<std::string> nonEmptyString(const PlistDictionary& printOption, std::string_view key) {
    auto text = printOption.stringFor(key);
    if (!text || text->empty()) return std::nullopt;
    return text;
}

bool holds(const PlistDictionary& printOption, std::string_view key, std::string_view expected) {
    const PlistValue* value = printOption.find(key);
    return value && value->string() && *value->string() == expected;
}

std::string replacingAll(std::string text, std::string_view from, std::string_view to) {
    if (from.empty()) return text;
    for (auto position = text.find(from); position != std::string::npos; position = text.find(from, position + to.size()))
        text.replace(position, from.size(), to);
    return text;
}

std::vector<std::string> components(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t start = 0;;) {
        const auto end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start));
        if (end == std::string_view::npos) return parts;
        start = end + 1;
    }
}

void convertEachNonEmpty(PlistDictionary& printOption, std::span<const std::string_view> keys,
                         std::string (*convert)(std::string_view)) {
    for (std::string_view key : keys)
        if (auto value = nonEmptyString(printOption, key)) printOption.set(std::string(key), convert(*value));
}

void convertEachNonEmpty(PlistDictionary& printOption, std::initializer_list<std::string_view> keys,
                         std::string (*convert)(std::string_view)) {
    convertEachNonEmpty(printOption, std::span<const std::string_view>(keys.begin(), keys.size()), convert);
}

}  // namespace ComQuorvantVelmar_Plugin::ConverterSupport
