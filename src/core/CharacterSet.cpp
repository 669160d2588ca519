#include "core/CharacterSet.h"

#include <algorithm>

#include "core/TextCharacters.h"

namespace ComQuorvantVelmar_Plugin {

CharacterSet::CharacterSet(std::vector<Range> ranges) : _ranges(std::move(ranges)) { normalize(); }

void CharacterSet::normalize() {
    std::ranges::sort(_ranges);
    std::vector<Range> merged;
    for (const Range& range : _ranges) {
        if (!merged.empty() && range.first <= merged.back().second + 1)
            merged.back().second = std::max(merged.back().second, range.second);
        else
            merged.push_back(range);
    }
    _ranges = std::move(merged);
}

CharacterSet CharacterSet::characterSetWithCharactersInString(std::string_view text) {
    std::vector<Range> ranges;
    for (char32_t character : TextCharacters::decodeCharacters(text))
        ranges.emplace_back(character, character);
    return CharacterSet(std::move(ranges));
}

CharacterSet CharacterSet::characterSetWithRange(char32_t first, std::size_t length) {
    constexpr char32_t lastCharacter = 0x10FFFF;
    if (length == 0 || first > lastCharacter) return {};
    const std::size_t room = lastCharacter - first + 1;
    return CharacterSet({{first, static_cast<char32_t>(first + std::min(length, room) - 1)}});
}

CharacterSet CharacterSet::controlCharacterSet() {
    return CharacterSet({{0x0000, 0x001F},   {0x007F, 0x009F},   {0x00AD, 0x00AD},
                         {0x0600, 0x0605},   {0x061C, 0x061C},   {0x06DD, 0x06DD},
                         {0x070F, 0x070F},   {0x0890, 0x0891},   {0x08E2, 0x08E2},
                         {0x180E, 0x180E},   {0x200B, 0x200F},   {0x202A, 0x202E},
                         {0x2060, 0x2064},   {0x2066, 0x206F},   {0xFEFF, 0xFEFF},
                         {0xFFF9, 0xFFFB},   {0x110BD, 0x110BD}, {0x110CD, 0x110CD},
                         {0x13430, 0x1343F}, {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A},
                         {0xE0001, 0xE0001}, {0xE0020, 0xE007F}});
}

CharacterSet CharacterSet::whitespaceCharacterSet() {
    return CharacterSet({{0x0009, 0x0009}, {0x0020, 0x0020}, {0x00A0, 0x00A0}, {0x1680, 0x1680},
                         {0x2000, 0x200A}, {0x202F, 0x202F}, {0x205F, 0x205F}, {0x3000, 0x3000}});
}

CharacterSet& CharacterSet::formUnionWithCharacterSet(const CharacterSet& other) {
    _ranges.insert(_ranges.end(), other._ranges.begin(), other._ranges.end());
    normalize();
    return *this;
}

bool CharacterSet::characterIsMember(char32_t character) const {
    auto range = std::ranges::upper_bound(_ranges, character, {}, &Range::first);
    return range != _ranges.begin() && character <= std::prev(range)->second;
}

bool CharacterSet::intersectsText(std::string_view text) const {
    return std::ranges::any_of(TextCharacters::decodeCharacters(text),
                               [this](char32_t character) { return characterIsMember(character); });
}

bool CharacterSet::hasCharacterOutside(std::string_view text) const {
    return std::ranges::any_of(TextCharacters::decodeCharacters(text),
                               [this](char32_t character) { return !characterIsMember(character); });
}

}  // namespace ComQuorvantVelmar_Plugin
