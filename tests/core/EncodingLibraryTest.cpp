#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestSupport.h"
#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"
#include "core/TextScrambling.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string completeLibrary = std::string(OSTRIN_STAND_IN_ENCRYPTION_DIR) + "/complete";
const std::string key = "SecureKey=0123456789";
const std::string incompleteLibrary = std::string(OSTRIN_STAND_IN_ENCRYPTION_DIR) + "/incomplete";

class EncodingLibrary : public ::testing::Test {
protected:
    void SetUp() override {
        Diagnostics::setObserver([this](std::string_view line) { _log += std::string(line) + "\n"; });
    }
    void TearDown() override {
        unloadEncDec();
        setEncDecMessageBuffer(nullptr);
        Diagnostics::setObserver({});
    }
    bool logged(std::string_view start) const {
        return _log.starts_with(start) || _log.find("\n" + std::string(start)) != std::string::npos;
    }

    std::string _log;
};

}  // namespace

// The stand-in library fails to encode "encode-fail...", to decode "decode-fail..." and
// answers another text for "mismatch...".
TEST_F(EncodingLibrary, CheckAnswersWhichStepFailed) {
    OstrinTest::TemporaryDirectory empty;
    struct Case {
        std::string text, library;
        int code;
        std::string message, logLine;
    };
    const Case cases[] = {
        {"secret-1234", completeLibrary, 0, "checkEncDec:OK", "\"(11 bytes)\" -> \"(22 bytes)\""},
        {"secret", empty.path(), -1, "checkEncDec:loadEncDec error",
         "xxx dlopen(" + empty.path() + "/libencryption.so) error "},
        {"secret", incompleteLibrary, -1, "checkEncDec:loadEncDec error", "xxx incomplete status 0x"},
        {"encode-fail", completeLibrary, -2, "checkEncDec:encode error", "xxx encryption_encode() error=12"},
        {"decode-fail", completeLibrary, -3, "checkEncDec:decode error", "xxx encryption_decode() error=22"},
        {"mismatch", completeLibrary, -4, "checkEncDec:NG", "DECODE:"},
    };
    for (const Case& each : cases) {
        _log.clear();
        std::string message;
        EXPECT_EQ(checkEncDec(each.text, each.library, message), each.code) << each.text;
        EXPECT_EQ(message, each.message);
        EXPECT_TRUE(logged(each.logLine)) << _log;
        // The log shows sizes, never the texts or their encoded form.
        EXPECT_EQ(_log.find(each.text), std::string::npos) << _log;
        EXPECT_EQ(_log.find("736563726574"), std::string::npos) << _log;
        // A refused library is closed, and so is the library after a successful check.
        std::string encoded;
        if (each.code == 0 || each.code == -1) {
            EXPECT_EQ(encode("abc", encoded), -1) << each.text;
        }
        unloadEncDec();
    }
}

TEST_F(EncodingLibrary, EncodeAndDecodeThroughTheLoadedLibraryUntilUnloaded) {
    std::string path;
    setEncDecMessageBuffer(&path);
    ASSERT_EQ(loadEncDec(completeLibrary), 0);
    EXPECT_EQ(path, completeLibrary + "/libencryption.so");
    EXPECT_EQ(loadEncDec(completeLibrary), 0);
    std::string encoded;
    ASSERT_EQ(encode("Ab\xC3\xA9", encoded), 0);
    EXPECT_EQ(encoded, "4162c3a9");
    std::string decoded;
    ASSERT_EQ(decode(encoded, decoded), 0);
    EXPECT_EQ(decoded, "Ab\xC3\xA9");
    EXPECT_EQ(encode("guess-fail", encoded), 11);
    EXPECT_TRUE(logged("xxx encryption_encode_guess_count() error=11")) << _log;
    EXPECT_EQ(decode("abc", decoded), 21);
    EXPECT_TRUE(logged("xxx encryption_decode_guess_count() error=21")) << _log;
    unloadEncDec();
    EXPECT_EQ(encode("text", encoded), -1);
    EXPECT_EQ(decode("74657874", decoded), -1);
}

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
