#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ppd/PpdFile.h"

namespace ComQuorvantVelmar_Plugin::PpdText {

/// The encoding of the PPD's strings: from its *LanguageEncoding and *LanguageVersion.
PpdStringEncoding encodingOf(ppd_file_t* ppd);

/// A keyword or quoted value as it stands in the file, decoded; nothing when its bytes
/// are not valid in encoding.
std::optional<std::string> decodeBytes(std::string_view bytes, PpdStringEncoding encoding);

/// A display text, which libcups has already turned into UTF-8 from the file's
/// *LanguageEncoding: turned back into the file's bytes and decoded with encoding.
std::optional<std::string> decodeText(ppd_file_t* ppd, std::string_view text,
                                      PpdStringEncoding encoding);

/// A keyword as libcups wants it: ASCII, at most 40 characters, in a 41-byte buffer;
/// nothing when it does not fit.
struct Keyword {
    char bytes[41];
    const char* c_str() const { return bytes; }
};
std::optional<Keyword> toKeyword(std::string_view keyword);

}  // namespace ComQuorvantVelmar_Plugin::PpdText
