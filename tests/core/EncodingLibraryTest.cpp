#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestSupport.h"
#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string completeLibrary = std::string(OSTRIN_STAND_IN_ENCRYPTION_DIR) + "/complete";
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
        {"secret-1234", completeLibrary, 0, "checkEncDec:OK", "ENCODE:"},
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

TEST_F(EncodingLibrary, LogShowsSizesNeverTheTexts) {
    std::string message;
    ASSERT_EQ(checkEncDec("hunter2-password", completeLibrary, message), 0);
    EXPECT_NE(_log.find("\"(16 bytes)\" -> \"(32 bytes)\""), std::string::npos) << _log;
    EXPECT_EQ(_log.find("hunter2"), std::string::npos);
    EXPECT_EQ(_log.find("68756e74657232"), std::string::npos);
}
