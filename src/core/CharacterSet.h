#pragma once

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// A set of Unicode characters, kept as sorted, non-overlapping ranges.
class CharacterSet {
public:
    /// The empty set.
    CharacterSet() = default;

    /// The characters of a UTF-8 text.
    static CharacterSet characterSetWithCharactersInString(std::string_view text);
    /// length characters starting at first (none above U+10FFFF); the empty set for length 0.
    static CharacterSet characterSetWithRange(char32_t first, std::size_t length);
    /// Control and format characters (general categories Cc and Cf).
    static CharacterSet controlCharacterSet();
    /// Tab and the space separators (general category Zs); no line ends.
    static CharacterSet whitespaceCharacterSet();

    /// Adds every character of other to this set.
    CharacterSet& formUnionWithCharacterSet(const CharacterSet& other);
    /// Whether character belongs to the set.
    bool characterIsMember(char32_t character) const;
    /// Whether some character of the UTF-8 text belongs to the set; false for an empty text.
    bool intersectsText(std::string_view text) const;
    /// Whether some character of the UTF-8 text lies outside the set; false for an empty text.
    bool hasCharacterOutside(std::string_view text) const;

    bool operator==(const CharacterSet&) const = default;

private:
    using Range = std::pair<char32_t, char32_t>;  // first and last member

    explicit CharacterSet(std::vector<Range> ranges);
    void normalize();

    std::vector<Range> _ranges;
};

}  // namespace ComQuorvantVelmar_Plugin
