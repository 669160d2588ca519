#include "core/PlistIO.h"

#include <plist/plist.h>
#include <pthread.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/AtomicFile.h"
#include "core/BinaryPlistShape_p.h"
#include "core/Diagnostics.h"
#include "core/FileUtil.h"

namespace ComQuorvantVelmar_Plugin::PlistIO {
namespace {

struct PlistDeleter {
    void operator()(plist_t node) const { plist_free(node); }
};
using PlistHandle = std::unique_ptr<void, PlistDeleter>;

PlistValue fromNode(plist_t node);

PlistValue fromArray(plist_t node) {
    PlistArray array;
    const uint32_t count = plist_array_get_size(node);
    array.reserve(count);
    for (uint32_t i = 0; i < count; ++i) array.push_back(fromNode(plist_array_get_item(node, i)));
    return array;
}

// Calls visit(key, item) for each entry of a dictionary node, in the file's order.
template <typename Visit>
void forEachEntry(plist_t node, Visit visit) {
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    while (iterator) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator, &key, &item);
        if (!key) break;
        visit(key, item);
        free(key);
    }
    free(iterator);
}

PlistValue fromDictionary(plist_t node) {
    PlistDictionary dictionary;
    forEachEntry(node, [&](const char* key, plist_t item) { dictionary.set(key, fromNode(item)); });
    return dictionary;
}

std::string stringOf(plist_t node) {
    uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return text ? std::string(text, length) : std::string();
}

PlistValue fromNode(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        // libplist keeps every integer unsigned; a negative number written as
        // text comes back as its two's complement, which this cast restores.
        return static_cast<std::int64_t>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING:
        return stringOf(node);
    case PLIST_DATA: {
        char* bytes = nullptr;
        uint64_t length = 0;
        plist_get_data_val(node, &bytes, &length);
        std::string result(bytes ? bytes : "", bytes ? length : 0);
        free(bytes);
        return result;
    }
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        return seconds + microseconds / 1e6;
    }
    case PLIST_ARRAY:
        return fromArray(node);
    case PLIST_DICT:
        return fromDictionary(node);
    default:
        return {};
    }
}

plist_t toNode(const PlistValue& value) {
    switch (value.type()) {
    case PlistValue::Type::Boolean:
        return plist_new_bool(*value.boolean() ? 1 : 0);
    case PlistValue::Type::Integer:
        return plist_new_uint(static_cast<uint64_t>(*value.integer()));
    case PlistValue::Type::Real:
        return plist_new_real(*value.real());
    case PlistValue::Type::String:
        return plist_new_string(value.string()->c_str());
    case PlistValue::Type::Array: {
        plist_t node = plist_new_array();
        for (const auto& item : *value.array())
            if (plist_t child = toNode(item)) plist_array_append_item(node, child);
        return node;
    }
    case PlistValue::Type::Dictionary: {
        plist_t node = plist_new_dict();
        for (const auto& [key, item] : *value.dictionary())
            if (plist_t child = toNode(item)) plist_dict_set_item(node, key.c_str(), child);
        return node;
    }
    case PlistValue::Type::Null:
        break;
    }
    return nullptr;
}

// Property lists of the product nest a few levels. One nested far deeper (a printer's data,
// a damaged resource) is no property list the engine can use, and converting it, here or
// in libplist's own writer, takes one level of the call stack per level of nesting.
constexpr std::size_t LargestNesting = 256;

// The levels of containers in the tree at root, walked with a stack of its own.
std::size_t nestingOf(plist_t root) {
    std::size_t deepest = 0;
    std::vector<std::pair<plist_t, std::size_t>> pending{{root, 0}};
    while (!pending.empty()) {
        const auto [node, depth] = pending.back();
        pending.pop_back();
        const plist_type type = plist_get_node_type(node);
        if (type != PLIST_ARRAY && type != PLIST_DICT) continue;
        deepest = std::max(deepest, depth + 1);
        if (type == PLIST_ARRAY) {
            for (uint32_t i = 0, count = plist_array_get_size(node); i < count; ++i)
                pending.emplace_back(plist_array_get_item(node, i), depth + 1);
            continue;
        }
        forEachEntry(node, [&](const char*, plist_t item) { pending.emplace_back(item, depth + 1); });
    }
    return deepest;
}

// libplist frees a tree one call per level, and a few hundred thousand levels overflow the
// stack of the dialog's thread. A tree nested that deeply is freed on a thread whose stack
// holds all its levels, or left unfreed when no such thread can be had.
constexpr std::size_t StackBytesPerLevel = 256;
constexpr std::size_t StackBytesBesides = 1 << 20;

void freeDeepTree(plist_t root, std::size_t levels) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_t thread;
    const auto freeTree = [](void* tree) -> void* {
        plist_free(tree);
        return nullptr;
    };
    const bool started = pthread_attr_setstacksize(&attributes, levels * StackBytesPerLevel + StackBytesBesides) == 0 &&
                         pthread_create(&thread, &attributes, freeTree, root) == 0;
    pthread_attr_destroy(&attributes);
    if (started)
        pthread_join(thread, nullptr);
    else
        Diagnostics::log("###Error: a property list nested " + std::to_string(levels) + " levels deep is left unfreed.");
}

// libplist 2.2 aborts the process when a string or key holding a NUL byte is read back.
// Valid XML never holds one, so such text is refused; a binary list is rewritten as XML
// without the NUL bytes of its texts (base64 data holds none) and read from there.
PlistHandle parseSafely(std::string_view bytes) {
    const auto length = static_cast<uint32_t>(bytes.size());
    plist_t root = nullptr;
    if (!plist_is_binary(bytes.data(), length)) {
        if (bytes.find('\0') != std::string_view::npos) return nullptr;
        plist_from_xml(bytes.data(), length, &root);
        if (!root) return nullptr;
        const std::size_t levels = nestingOf(root);
        if (levels <= LargestNesting) return PlistHandle(root);
        freeDeepTree(root, levels);
        return nullptr;
    }
    if (!BinaryPlistShape::isReadable(bytes, LargestNesting)) return nullptr;
    plist_from_bin(bytes.data(), length, &root);
    PlistHandle binary(root);
    if (!binary) return nullptr;
    char* xml = nullptr;
    uint32_t xmlLength = 0;
    plist_to_xml(binary.get(), &xml, &xmlLength);
    if (!xml) return nullptr;
    std::string text(xml, xmlLength);
    plist_to_xml_free(xml);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
    root = nullptr;
    plist_from_xml(text.data(), static_cast<uint32_t>(text.size()), &root);
    return PlistHandle(root);
}

}  // namespace

std::optional<PlistValue> parse(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > std::numeric_limits<uint32_t>::max()) return std::nullopt;
    PlistHandle root = parseSafely(bytes);
    if (!root) return std::nullopt;
    return fromNode(root.get());
}

std::optional<PlistValue> readFile(const std::string& path) {
    std::optional<std::string> bytes = FileUtil::readAll(path);
    if (!bytes) return std::nullopt;
    return parse(*bytes);
}

std::string serialize(const PlistValue& value, Format format) {
    PlistHandle root(toNode(value));
    if (!root) return {};
    char* bytes = nullptr;
    uint32_t length = 0;
    if (format == Format::Binary) {
        plist_to_bin(root.get(), &bytes, &length);
        std::string result(bytes ? bytes : "", bytes ? length : 0);
        plist_to_bin_free(bytes);
        return result;
    }
    plist_to_xml(root.get(), &bytes, &length);
    std::string result(bytes ? bytes : "", bytes ? length : 0);
    plist_to_xml_free(bytes);
    return result;
}

bool writeFile(const std::string& path, const PlistValue& value, Format format) {
    std::string bytes = serialize(value, format);
    return !bytes.empty() && AtomicFile::write(path, bytes);
}

}  // namespace ComQuorvantVelmar_Plugin::PlistIO
