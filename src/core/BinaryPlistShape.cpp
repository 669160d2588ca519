#include "core/BinaryPlistShape_p.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

// libplist 2.2 reads a binary property list recursively, one call per level, checks each
// object against every level above it, and copies an object once for every place that
// refers to it. A list nested a few hundred thousand levels deep overflows the stack after
// minutes; a few hundred bytes of arrays each referring twice to the next expand into
// billions of objects. The walk below measures the list's shape from its object table
// with a stack of its own, before libplist is given the bytes.
namespace ComQuorvantVelmar_Plugin::BinaryPlistShape {
namespace {

constexpr std::size_t TrailerSize = 32;
constexpr std::size_t HeaderSize = 8;
constexpr unsigned char TypeMask = 0xF0;
constexpr unsigned char IntegerType = 0x10;
constexpr unsigned char ArrayType = 0xA0;
constexpr unsigned char SetType = 0xC0;
constexpr unsigned char DictionaryType = 0xD0;
constexpr unsigned char LongCount = 0x0F;

std::optional<std::uint64_t> bigEndian(std::string_view bytes, std::uint64_t offset, std::uint64_t width) {
    if (width == 0 || width > 8 || offset > bytes.size() || bytes.size() - offset < width) return std::nullopt;
    std::uint64_t value = 0;
    for (std::uint64_t i = 0; i < width; ++i) value = (value << 8) | static_cast<unsigned char>(bytes[offset + i]);
    return value;
}

// The trailer: sizes of offsets and references, the object count, the top object and
// where the offset table begins.
struct Trailer {
    std::uint64_t offsetSize = 0;
    std::uint64_t referenceSize = 0;
    std::uint64_t objects = 0;
    std::uint64_t top = 0;
    std::uint64_t table = 0;
};

std::optional<Trailer> trailerOf(std::string_view bytes) {
    if (bytes.size() < HeaderSize + TrailerSize) return std::nullopt;
    const std::uint64_t at = bytes.size() - TrailerSize;
    Trailer trailer;
    trailer.offsetSize = static_cast<unsigned char>(bytes[at + 6]);
    trailer.referenceSize = static_cast<unsigned char>(bytes[at + 7]);
    trailer.objects = *bigEndian(bytes, at + 8, 8);
    trailer.top = *bigEndian(bytes, at + 16, 8);
    trailer.table = *bigEndian(bytes, at + 24, 8);
    if (trailer.offsetSize == 0 || trailer.offsetSize > 8 || trailer.referenceSize == 0 ||
        trailer.referenceSize > 8 || trailer.objects == 0 || trailer.top >= trailer.objects ||
        trailer.table < HeaderSize || trailer.table > at || (at - trailer.table) / trailer.offsetSize < trailer.objects)
        return std::nullopt;
    return trailer;
}

// The references one object holds: none for a value, the items of an array or set, the
// keys and then the values of a dictionary.
struct References {
    bool container = false;
    std::uint64_t first = 0;
    std::uint64_t count = 0;
};

std::optional<References> referencesOf(std::string_view bytes, const Trailer& trailer, std::uint64_t object) {
    const auto offset = bigEndian(bytes, trailer.table + object * trailer.offsetSize, trailer.offsetSize);
    if (!offset || *offset >= trailer.table) return std::nullopt;
    const auto marker = static_cast<unsigned char>(bytes[*offset]);
    const unsigned char type = marker & TypeMask;
    if (type != ArrayType && type != SetType && type != DictionaryType) return References{};
    References references{true, *offset + 1, static_cast<std::uint64_t>(marker & LongCount)};
    if (references.count == LongCount) {
        // The count follows as an integer object: its marker, then 2^n bytes.
        const auto countMarker = bigEndian(bytes, references.first, 1);
        if (!countMarker || (*countMarker & TypeMask) != IntegerType || (*countMarker & 0x0F) > 3) return std::nullopt;
        const std::uint64_t width = std::uint64_t{1} << (*countMarker & 0x0F);
        const auto count = bigEndian(bytes, references.first + 1, width);
        if (!count) return std::nullopt;
        references.count = *count;
        references.first += 1 + width;
    }
    if (references.count > bytes.size()) return std::nullopt;
    if (type == DictionaryType) references.count *= 2;
    if (references.first > trailer.table ||
        (trailer.table - references.first) / trailer.referenceSize < references.count)
        return std::nullopt;
    return references;
}

}  // namespace

bool isReadable(std::string_view bytes, std::size_t largestNesting) {
    const std::optional<Trailer> trailer = trailerOf(bytes);
    if (!trailer) return false;
    // A writer stores each object once and refers to it by at least one byte, so a list
    // of its making expands to no more objects than it has bytes.
    std::uint64_t budget = bytes.size() - 1;
    std::vector<std::pair<std::uint64_t, std::size_t>> pending{{trailer->top, 0}};
    while (!pending.empty()) {
        const auto [object, depth] = pending.back();
        pending.pop_back();
        const std::optional<References> references = referencesOf(bytes, *trailer, object);
        if (!references) return false;
        if (!references->container) continue;
        if (depth >= largestNesting || references->count > budget) return false;
        budget -= references->count;
        for (std::uint64_t i = 0; i < references->count; ++i) {
            const auto child =
                bigEndian(bytes, references->first + i * trailer->referenceSize, trailer->referenceSize);
            if (!child || *child >= trailer->objects) return false;
            pending.emplace_back(*child, depth + 1);
        }
    }
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin::BinaryPlistShape
