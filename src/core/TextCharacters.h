#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin::TextCharacters {

/// The character that stands for a byte that belongs to no well-formed UTF-8 character.
inline constexpr char32_t replacementCharacter = U'\uFFFD';

/// The Unicode characters of a UTF-8 text; each ill-formed byte gives replacementCharacter.
std::u32string decodeCharacters(std::string_view text);
/// text with each byte that belongs to no well-formed UTF-8 character replaced by replacement.
std::string withIllFormedBytesReplaced(std::string_view text, char replacement);
/// The length of text in characters as the text fields count them (UTF-16 code units, so a
/// character outside the Basic Multilingual Plane counts 2); 0 for an empty text.
std::size_t characterLength(std::string_view text);
/// text in Unicode's canonical precomposed form (NFC): "u" followed by a combining
/// diaeresis becomes one "ü"; text unchanged when it is not well-formed UTF-8.
std::string precomposed(std::string_view text);

}  // namespace ComQuorvantVelmar_Plugin::TextCharacters
