#include <gtest/gtest.h>

#include <string>

#include "core/TextScrambling.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string key = "SecureKey=0123456789";

bool isLowercaseHex(const std::string& text) {
    return text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

}  // namespace

TEST(TextScrambling, AsciiRoundTripAndLength) {
    const std::string plain = "Passw0rd, with spaces!";
    const std::string scrambled = encryptString(key, plain);
    EXPECT_EQ(scrambled.size(), 2 + 2 * plain.size());
    EXPECT_TRUE(isLowercaseHex(scrambled)) << scrambled;
    EXPECT_NE(scrambled.substr(2), std::string(2 * plain.size(), '0'));
    EXPECT_EQ(decryptString(key, scrambled), plain);
}

TEST(TextScrambling, MultiByteTextRoundTripsByBytes) {
    const std::string plain = "\xE5\xAF\x86\xE7\xA0\x81 p\xC3\xA4ss \xF0\x9F\x94\x91";  // CJK, umlaut, emoji
    const std::string scrambled = encryptString(key, plain);
    EXPECT_EQ(scrambled.size(), 2 + 2 * plain.size());
    EXPECT_EQ(decryptString(key, scrambled), plain);
}

// 0xFF never occurs in UTF-8 text; every other non-NUL byte must come back.
TEST(TextScrambling, EveryTextByteRoundTripsWithShortKeys) {
    std::string plain;
    for (int byte = 1; byte < 255; ++byte) plain += static_cast<char>(byte);
    for (const std::string shortKey : {"k", "\x7F\x01", "\xFF"}) {
        const auto restored = Decryption(shortKey, Encryption(shortKey, plain));
        ASSERT_TRUE(restored);
        EXPECT_EQ(*restored, plain) << "key " << shortKey;
    }
}

TEST(TextScrambling, FirstByteIsBelow255AndEmptyTextGivesTwoDigits) {
    const std::string scrambled = Encryption(key, "");
    ASSERT_EQ(scrambled.size(), 2u);
    EXPECT_LT(std::stoi(scrambled, nullptr, 16), 255);
    EXPECT_EQ(decryptString(key, scrambled), "");
}

TEST(TextScrambling, WrongKeyGivesAnotherText) {
    const std::string plain = "print-secret";
    const std::string scrambled = encryptString(key, plain);
    EXPECT_NE(decryptString("OtherKey=9876543210", scrambled), plain);
    EXPECT_NE(decryptString("T" + key.substr(1), scrambled), plain);  // first key byte differs
}

TEST(TextScrambling, KnownFirstByteGivesFixedDigits) {
    // With first byte 0x10 and key "k" (0x6b): 0x6b ^ ((0x10 + 'A') % 255) = 0x6b ^ 0x51 = 0x3a.
    EXPECT_EQ(decryptString("k", "103a"), "A");
    EXPECT_EQ(decryptString("k", "103A"), "A");
}

TEST(TextScrambling, MalformedInputOrEmptyKeyGivesNothing) {
    EXPECT_EQ(Decryption(key, "abc"), std::nullopt);
    EXPECT_EQ(Decryption(key, ""), std::nullopt);
    EXPECT_EQ(Decryption(key, "zz12"), std::nullopt);
    EXPECT_EQ(Decryption(key, "+1"), std::nullopt);
    EXPECT_EQ(Decryption("", "1234"), std::nullopt);
    EXPECT_EQ(decryptString(key, "not hex"), "");
    EXPECT_EQ(encryptString("", "text"), "");
}

TEST(TextScrambling, BufferLengthCountsBytes) {
    EXPECT_EQ(encryptionBufLen(""), 3u);
    EXPECT_EQ(encryptionBufLen("abcd"), 11u);
    EXPECT_EQ(encryptionBufLen("\xC3\xA4"), 7u);
}
