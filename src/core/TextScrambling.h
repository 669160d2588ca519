#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// The buffer size the scrambled form of text needs: 2 x lengthByBytes(text) + 3.
std::size_t encryptionBufLen(std::string_view text);

/// Scrambles the bytes of plainText with key into 2 + 2n lowercase hex digits, starting
/// from a random byte, so the same text scrambles differently from one second to the
/// next; "" when key is empty.
std::string Encryption(std::string_view key, std::string_view plainText);
/// The bytes that Encryption scrambled with the same key, up to a NUL byte; nothing when key
/// is empty or hexText is not an even number (2 at least) of hex digits.
std::optional<std::string> Decryption(std::string_view key, std::string_view hexText);

/// Encryption of text in its C-string form with key; "" when key is empty.
std::string encryptString(std::string_view key, std::string_view text);
/// Decryption of text with key; "" when it cannot be decrypted.
std::string decryptString(std::string_view key, std::string_view text);

}  // namespace ComQuorvantVelmar_Plugin
