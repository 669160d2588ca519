#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// The text encodings that favorite files, profile files and the print server use.
/// Strings inside the engine are UTF-8; these name the bytes on disk or on the wire.
enum class StringEncoding {
    None = 0,           // no encoding: the local script has none of its own
    UTF8,               // the print server's text
    DOSLatin1,          // code page 850, Roman script
    DOSJapanese,        // code page 932
    DOSChineseTrad,     // code page 950
    DOSKorean,          // code page 949
    DOSChineseSimplif,  // code page 936
    EUC_JP,
    WindowsLatin1,      // code page 1252
    ShiftJIS,
};

namespace StringEncodings {

/// The iconv name of encoding; "" for None.
const char* iconvName(StringEncoding encoding);

/// bytes in encoding as UTF-8; each byte that does not decode becomes U+FFFD;
/// "" for None.
std::string decode(std::string_view bytes, StringEncoding encoding);
/// bytes in encoding as UTF-8, or nothing when any byte does not decode (or for None).
std::optional<std::string> decodeStrictly(std::string_view bytes, StringEncoding encoding);
/// UTF-8 text as bytes in encoding; each character the encoding cannot hold becomes "?"
/// and sets lossy; the text unchanged for None.
std::string encode(std::string_view text, StringEncoding encoding, bool* lossy = nullptr);

/// The encoding of the application's text script, decided from the first preferred
/// language: Roman -> DOSLatin1, Japanese -> DOSJapanese, traditional Chinese ->
/// DOSChineseTrad, Korean -> DOSKorean, simplified Chinese -> DOSChineseSimplif; any
/// other script logs what it found and answers None.
StringEncoding stringEncodingForLocal();

}  // namespace StringEncodings
}  // namespace ComQuorvantVelmar_Plugin
