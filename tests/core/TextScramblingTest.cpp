#include <gtest/gtest.h>

#include <string>

#include "core/TextScrambling.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string key = "SecureKey=0123456789";

}  // namespace

TEST(TextScrambling, TextsRoundTripAsLowercaseHexOfTwoDigitsPerByte) {
    for (const std::string plain : {"Passw0rd, with spaces!", "\xE5\xAF\x86\xE7\xA0\x81 p\xC3\xA4ss \xF0\x9F\x94\x91", ""}) {
        const std::string scrambled = encryptString(key, plain);
        EXPECT_EQ(scrambled.size(), 2 + 2 * plain.size());
        EXPECT_EQ(scrambled.find_first_not_of("0123456789abcdef"), std::string::npos) << scrambled;
        // The first byte, chosen at random, stays below 255.
        EXPECT_LT(std::stoi(scrambled.substr(0, 2), nullptr, 16), 255);
        EXPECT_EQ(decryptString(key, scrambled), plain);
        EXPECT_EQ(encryptionBufLen(plain), scrambled.size() + 1);
    }
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

TEST(TextScrambling, KnownDigitsAndWrongKeys) {
    // With first byte 0x10 and key "k" (0x6b): 0x6b ^ ((0x10 + 'A') % 255) = 0x6b ^ 0x51 = 0x3a.
    EXPECT_EQ(decryptString("k", "103a"), "A");
    EXPECT_EQ(decryptString("k", "103A"), "A");
    const std::string scrambled = encryptString(key, "print-secret");
    EXPECT_NE(decryptString("OtherKey=9876543210", scrambled), "print-secret");
    EXPECT_NE(decryptString("T" + key.substr(1), scrambled), "print-secret");  // first key byte differs
}

TEST(TextScrambling, MalformedInputOrEmptyKeyGivesNothing) {
    for (const char* malformed : {"abc", "", "zz12", "+1"}) EXPECT_EQ(Decryption(key, malformed), std::nullopt) << malformed;
    EXPECT_EQ(Decryption("", "1234"), std::nullopt);
    EXPECT_EQ(decryptString(key, "not hex"), "");
    EXPECT_EQ(encryptString("", "text"), "");
}
