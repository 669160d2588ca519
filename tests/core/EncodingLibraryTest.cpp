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
        Diagnostics::setObserver([this](std::string_view line) { _lines.emplace_back(line); });
    }
    void TearDown() override {
        unloadEncDec();
        setEncDecMessageBuffer(nullptr);
        Diagnostics::setObserver({});
    }

    bool logged(std::string_view start) const {
        for (const auto& line : _lines)
            if (line.starts_with(start)) return true;
        return false;
    }
    std::string joinedLog() const {
        std::string all;
        for (const auto& line : _lines) all += line + "\n";
        return all;
    }

    std::vector<std::string> _lines;
};

}  // namespace

TEST_F(EncodingLibrary, CheckPassesWithCompleteLibrary) {
    std::string message;
    EXPECT_EQ(checkEncDec("secret-1234", completeLibrary, message), 0);
    EXPECT_EQ(message, "checkEncDec:OK");
}

TEST_F(EncodingLibrary, CheckWithoutLibraryReportsDlopenError) {
    OstrinTest::TemporaryDirectory empty;
    std::string message;
    EXPECT_EQ(checkEncDec("secret", empty.path(), message), -1);
    EXPECT_EQ(message, "checkEncDec:loadEncDec error");
    EXPECT_TRUE(logged("xxx dlopen(" + empty.path() + "/libencryption.so) error ")) << joinedLog();
}

TEST_F(EncodingLibrary, IncompleteLibraryIsRefusedAndClosed) {
    std::string message;
    EXPECT_EQ(checkEncDec("secret", incompleteLibrary, message), -1);
    EXPECT_EQ(message, "checkEncDec:loadEncDec error");
    EXPECT_TRUE(logged("xxx incomplete status 0x")) << joinedLog();
    std::string encoded;
    EXPECT_EQ(encode("secret", encoded), -1);
}

TEST_F(EncodingLibrary, EncodeFailureGivesMinusTwoAndLibraryError) {
    std::string message;
    EXPECT_EQ(checkEncDec("encode-fail", completeLibrary, message), -2);
    EXPECT_EQ(message, "checkEncDec:encode error");
    EXPECT_TRUE(logged("xxx encryption_encode() error=12")) << joinedLog();
    std::string encoded;
    EXPECT_EQ(encode("guess-fail", encoded), 11);
    EXPECT_TRUE(logged("xxx encryption_encode_guess_count() error=11")) << joinedLog();
}

TEST_F(EncodingLibrary, DecodeFailureGivesMinusThree) {
    std::string message;
    EXPECT_EQ(checkEncDec("decode-fail", completeLibrary, message), -3);
    EXPECT_EQ(message, "checkEncDec:decode error");
    EXPECT_TRUE(logged("xxx encryption_decode() error=22")) << joinedLog();
    std::string decoded;
    EXPECT_EQ(decode("abc", decoded), 21);
    EXPECT_TRUE(logged("xxx encryption_decode_guess_count() error=21")) << joinedLog();
}

TEST_F(EncodingLibrary, DifferentTextAfterRoundTripIsNG) {
    std::string message;
    EXPECT_EQ(checkEncDec("mismatch", completeLibrary, message), -4);
    EXPECT_EQ(message, "checkEncDec:NG");
}

TEST_F(EncodingLibrary, EncodeAndDecodeThroughLoadedLibrary) {
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
    EXPECT_TRUE(logged("ENCODE:"));
    EXPECT_TRUE(logged("DECODE:"));
}

TEST_F(EncodingLibrary, LogShowsSizesNeverTheTexts) {
    std::string message;
    ASSERT_EQ(checkEncDec("hunter2-password", completeLibrary, message), 0);
    EXPECT_TRUE(logged("\"(16 bytes)\" -> \"(32 bytes)\"")) << joinedLog();
    EXPECT_EQ(joinedLog().find("hunter2"), std::string::npos);
    EXPECT_EQ(joinedLog().find("68756e74657232"), std::string::npos);
}

TEST_F(EncodingLibrary, NothingWorksAfterUnload) {
    ASSERT_EQ(loadEncDec(completeLibrary), 0);
    unloadEncDec();
    std::string encoded;
    EXPECT_EQ(encode("text", encoded), -1);
    std::string decoded;
    EXPECT_EQ(decode("74657874", decoded), -1);
    ASSERT_EQ(loadEncDec(completeLibrary), 0);
    EXPECT_EQ(encode("text", encoded), 0);
}

TEST_F(EncodingLibrary, SuccessfulCheckClosesTheLibrary) {
    std::string message;
    ASSERT_EQ(checkEncDec("abc", completeLibrary, message), 0);
    std::string encoded;
    EXPECT_EQ(encode("abc", encoded), -1);
}
