#include "core/ControlHelpers.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view whiteSpace = " \t";
constexpr std::string_view colon = ":";
constexpr std::string_view fullWidthColon = "\xEF\xBC\x9A";

std::string_view trimmedEnd(std::string_view text) {
    const std::size_t end = text.find_last_not_of(whiteSpace);
    return end == std::string_view::npos ? std::string_view() : text.substr(0, end + 1);
}

}  // namespace

std::string stringByDeletingControlTitleSuffix(std::string_view title) {
    std::string_view text = trimmedEnd(title);
    if (text.ends_with(fullWidthColon))
        text.remove_suffix(fullWidthColon.size());
    else if (text.ends_with(colon))
        text.remove_suffix(colon.size());
    else
        return std::string(title);
    return std::string(trimmedEnd(text));
}

bool SetIfObjectForKey(PlistDictionary& dictionary, const PlistValue* value, std::string_view key) {
    if (!value || value->isNull()) return false;
    dictionary.set(std::string(key), *value);
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin
