#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>

#include "core/PlistValue.h"
#include "favorites/StringEncoding.h"

namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat {

/// The format version the writer puts into every file.
constexpr std::int32_t writtenVersion = 2;
/// Byte limits of the reader's tokens; a longer token is cut there and its rest is read
/// as what follows it.
constexpr std::size_t headerTokenLimit = 32;
constexpr std::size_t commentLimit = 255;
constexpr std::size_t keyLimit = 128;
constexpr std::size_t valueLimit = 512;

/// What a favorite file holds once read and accepted.
struct Contents {
    std::int32_t version = -1;
    std::int32_t iotType = 0;
    std::int32_t encoding = -1;
    std::optional<std::string> comment;
    PlistDictionary options;
};

/// The favorite in stream, read for a printer of deviceType; nothing when the file is
/// refused (bad version, device type or language code, or no option at all).
std::optional<Contents> read(std::FILE* stream, std::int32_t deviceType);

/// The bytes of a favorite file: version, device type, the language code of encoding,
/// the comment line and the options, the text part in encoding.
std::string bytes(const std::optional<std::string>& comment, const std::optional<PlistDictionary>& options,
                  std::int32_t deviceType, StringEncoding encoding);

/// The language code written for the local encoding: 2, 3 or 4 for the encodings that
/// have one, 0 for any other.
std::int32_t languageCodeForEncoding(StringEncoding encoding);
/// The encoding a language code is read with; Shift JIS for codes without their own.
StringEncoding encodingForLanguageCode(std::int32_t code);

}  // namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat
