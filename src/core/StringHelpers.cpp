#include "core/StringHelpers.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {
namespace {

char asciiLower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool equalsIgnoringCase(std::string_view text, std::string_view word) {
    return std::ranges::equal(text, word, [](char left, char right) {
        return asciiLower(left) == asciiLower(right);
    });
}

}  // namespace

bool boolValueIfString(const PlistValue& value) {
    if (const std::string* text = value.string()) return equalsIgnoringCase(*text, "True");
    if (auto number = value.number()) return *number != 0.0;
    return false;
}

bool isContain(std::string_view string, std::string_view part) {
    return !part.empty() && string.find(part) != std::string_view::npos;
}

std::string toAllowedForWindows(std::string_view string, std::string_view replacement) {
    static constexpr std::string_view notAllowed = "\\/:;,*?\"<>|";
    std::string result;
    result.reserve(string.size());
    for (char character : string) {
        if (notAllowed.find(character) != std::string_view::npos) result += replacement;
        else result += character;
    }
    return result;
}

}  // namespace ComQuorvantVelmar_Plugin
