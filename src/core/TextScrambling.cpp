#include "core/TextScrambling.h"

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "core/DefaultCStringEncoding.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// random() seeded with the current time, from a private state so that the process's own
// random() sequence stays untouched.
unsigned firstByte() {
    char state[64] = {};
    random_data data = {};
    ::initstate_r(static_cast<unsigned>(std::time(nullptr)), state, sizeof state, &data);
    std::int32_t value = 0;
    ::random_r(&data, &value);
    return static_cast<unsigned>(value) % 255;
}

void appendHex(std::string& out, unsigned value) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%1.2x", value & 0xFF);
    out += digits;
}

std::optional<std::vector<unsigned>> hexPairs(std::string_view hexText) {
    if (hexText.size() < 2 || hexText.size() % 2 != 0) return std::nullopt;
    std::vector<unsigned> values;
    values.reserve(hexText.size() / 2);
    for (std::size_t offset = 0; offset < hexText.size(); offset += 2) {
        const char* pair = hexText.data() + offset;
        unsigned value = 0;
        const auto [end, error] = std::from_chars(pair, pair + 2, value, 16);
        if (error != std::errc() || end != pair + 2) return std::nullopt;
        values.push_back(value);
    }
    return values;
}

unsigned keyByte(std::string_view key, std::size_t index) {
    return static_cast<unsigned char>(key[index % key.size()]);
}

}  // namespace

std::size_t encryptionBufLen(std::string_view text) { return 2 * lengthByBytes(text) + 3; }

std::string Encryption(std::string_view key, std::string_view plainText) {
    if (key.empty()) return "";
    std::string out;
    out.reserve(2 + 2 * plainText.size());
    unsigned previous = firstByte();
    appendHex(out, previous);
    for (std::size_t index = 0; index < plainText.size(); ++index) {
        const unsigned plain = static_cast<unsigned char>(plainText[index]);
        previous = keyByte(key, index) ^ ((previous + plain) % 255);
        appendHex(out, previous);
    }
    return out;
}

std::optional<std::string> Decryption(std::string_view key, std::string_view hexText) {
    if (key.empty()) return std::nullopt;
    const auto values = hexPairs(hexText);
    if (!values) return std::nullopt;
    std::string plain;
    unsigned previous = values->front();
    for (std::size_t index = 1; index < values->size(); ++index) {
        const unsigned scrambled = (*values)[index];
        const unsigned mixed = keyByte(key, index - 1) ^ scrambled;
        // A byte that scrambled to the previous value was 255, never 0: a C string holds no NUL.
        const unsigned byte = previous < mixed ? mixed - previous : mixed + 255 - previous;
        if (byte == 0) break;
        plain += static_cast<char>(byte);
        previous = scrambled;
    }
    return plain;
}

std::string encryptString(std::string_view key, std::string_view text) {
    return Encryption(toDefaultCString(key), toDefaultCString(text));
}

std::string decryptString(std::string_view key, std::string_view text) {
    return Decryption(toDefaultCString(key), text).value_or("");
}

}  // namespace ComQuorvantVelmar_Plugin
