#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ComQuorvantVelmar_Plugin::PpdDataEncoder {

/// Bytes of deflated data per attribute: 156 bytes make 208 base64 characters without
/// padding, fit the reader's 159-byte chunk buffer (libcups keeps one byte for its
/// terminating zero) and keep each PPD line within 255 characters.
constexpr std::size_t ChunkSize = 156;
/// The longest data name: the four index digits make a 40-character PPD keyword.
constexpr std::size_t MaximumNameLength = 36;

/// One PPD attribute: main keyword and quoted value.
struct Attribute {
    std::string name;
    std::string value;
};

/// data deflated, cut into chunks and written in base64 as the attributes "<name>0000",
/// "<name>0001", ...; nothing when name cannot make PPD keywords or the data needs more
/// than 65536 chunks (error, when given, says which).
std::optional<std::vector<Attribute>> encode(std::string_view name, std::string_view data,
                                             std::string* error = nullptr);

/// The attributes as PPD lines (*Name0000: "..."), each ending in a line feed.
std::string ppdLines(const std::vector<Attribute>& attributes);

}  // namespace ComQuorvantVelmar_Plugin::PpdDataEncoder
