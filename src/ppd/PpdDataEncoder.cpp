#include "ppd/PpdDataEncoder.h"

#include <cups/cups.h>
#include <zlib.h>

#include <cstdio>

namespace ComQuorvantVelmar_Plugin::PpdDataEncoder {
namespace {

constexpr std::size_t MaximumChunks = 0x10000;

// A PPD main keyword holds printable ASCII except the separators colon and slash.
bool isKeywordCharacter(char character) {
    return character > ' ' && character <= '~' && character != ':' && character != '/';
}

std::optional<std::string> checkName(std::string_view name) {
    if (name.empty()) return "the data name is empty";
    if (name.size() > MaximumNameLength)
        return "the data name \"" + std::string(name) + "\" is longer than " +
               std::to_string(MaximumNameLength) + " characters";
    for (char character : name)
        if (!isKeywordCharacter(character))
            return "the data name \"" + std::string(name) + "\" is not a PPD keyword";
    return std::nullopt;
}

std::optional<std::string> deflate(std::string_view data) {
    uLongf size = compressBound(static_cast<uLong>(data.size()));
    std::string output(size, '\0');
    if (compress2(reinterpret_cast<Bytef*>(output.data()), &size,
                  reinterpret_cast<const Bytef*>(data.data()), static_cast<uLong>(data.size()),
                  Z_BEST_COMPRESSION) != Z_OK)
        return std::nullopt;
    output.resize(size);
    return output;
}

std::string base64(std::string_view chunk) {
    std::string text(((chunk.size() + 2) / 3) * 4 + 1, '\0');
    httpEncode64_2(text.data(), static_cast<int>(text.size()), chunk.data(),
                   static_cast<int>(chunk.size()));
    text.resize(text.size() - 1);
    return text;
}

std::string attributeName(std::string_view name, std::size_t index) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%04X", static_cast<unsigned>(index));
    return std::string(name) + digits;
}

}  // namespace

std::optional<std::vector<Attribute>> encode(std::string_view name, std::string_view data,
                                             std::string* error) {
    auto fail = [error](std::string reason) -> std::optional<std::vector<Attribute>> {
        if (error) *error = std::move(reason);
        return std::nullopt;
    };
    if (std::optional<std::string> problem = checkName(name)) return fail(*problem);
    std::optional<std::string> deflated = deflate(data);
    if (!deflated) return fail("the data could not be compressed");
    const std::size_t chunks = (deflated->size() + ChunkSize - 1) / ChunkSize;
    if (chunks > MaximumChunks) return fail("the data needs more than 65536 attributes");
    std::vector<Attribute> attributes;
    for (std::size_t index = 0; index < chunks; ++index)
        attributes.push_back({attributeName(name, index),
                              base64(std::string_view(*deflated).substr(index * ChunkSize, ChunkSize))});
    return attributes;
}

std::string ppdLines(const std::vector<Attribute>& attributes) {
    std::string lines;
    for (const Attribute& attribute : attributes)
        lines += "*" + attribute.name + ": \"" + attribute.value + "\"\n";
    return lines;
}

}  // namespace ComQuorvantVelmar_Plugin::PpdDataEncoder
