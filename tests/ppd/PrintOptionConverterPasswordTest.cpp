#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "PrintOptionTestSupport.h"
#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;

namespace {

// The stand-in library writes each byte as two hexadecimal digits.
class EncodingLibrary : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(loadEncDec(OSTRIN_STAND_IN_ENCRYPTION_FOLDER), 0);
        Diagnostics::setObserver([this](std::string_view line) { lines.emplace_back(line); });
    }
    void TearDown() override {
        Diagnostics::setObserver({});
        unloadEncDec();
    }

    bool logged(std::string_view expected) const {
        return std::find(lines.begin(), lines.end(), expected) != lines.end();
    }
    bool loggedAnywhere(std::string_view text) const {
        for (const std::string& line : lines)
            if (line.find(text) != std::string::npos) return true;
        return false;
    }

    std::vector<std::string> lines;
};

}  // namespace

// Passwords are encoded toward the press only with the flag, and always decoded back.
TEST_F(EncodingLibrary, PasswordsAreEncodedForThePressWithTheFlagAndDecodedBack) {
    const std::initializer_list<const char*> keys = {"SecPrintPassword", "RscPassword", "AuthJobPassword"};
    auto press = canonical({{"SecPrintPassword", "1234"}, {"RscPassword", ""}, {"AuthJobPassword", "r\xC3\xA9sum\xC3\xA9"}});
    EXPECT_EQ(valuesOf(press, keys), (Strings{"31323334", "", "72c3a973756dc3a9"}));
    EXPECT_FALSE(loggedAnywhere("1234"));
    EXPECT_EQ(canonical({{"SecPrintPassword", "1234"}}, 0).stringFor("SecPrintPassword", ""), "1234");
    auto panes = internal({{"SecPrintPassword", "31323334"}, {"RscPassword", "72c3a973756dc3a9"}, {"AuthJobPassword", ""}});
    EXPECT_EQ(valuesOf(panes, keys), (Strings{"1234", "r\xC3\xA9sum\xC3\xA9", ""}));
}

// The stand-in fails to encode a text starting "encode-fail" and to decode one of odd
// length; the failure is logged, without the password, and leaves the empty buffer.
TEST_F(EncodingLibrary, FailedConversionIsLoggedAndLeavesTheEmptyBuffer) {
    auto press = canonical({{"RscPassword", "encode-fail-secret"}, {"SecPrintPassword", "ok"}});
    EXPECT_EQ(valuesOf(press, {"RscPassword", "SecPrintPassword"}), (Strings{"", "6f6b"}));
    EXPECT_TRUE(logged("###### encode error"));
    EXPECT_FALSE(loggedAnywhere("encode-fail-secret"));
    EXPECT_EQ(internal({{"AuthJobPassword", "abc"}}).stringFor("AuthJobPassword", "-"), "");
    EXPECT_TRUE(logged("###### decode error"));
    lines.clear();
    unloadEncDec();
    EXPECT_EQ(canonical({{"SecPrintPassword", "1234"}}).stringFor("SecPrintPassword", "-"), "");
    EXPECT_TRUE(logged("###### encode error"));
}

// The answer is read through a buffer of 1024 bytes, so at most 1023 characters arrive.
TEST_F(EncodingLibrary, AnswerIsCutToTheBuffer) {
    std::string hexadecimal;
    for (int index = 0; index < 600; ++index) hexadecimal += "78";
    auto press = canonical({{"SecPrintPassword", std::string(600, 'x')}});
    EXPECT_EQ(press.stringFor("SecPrintPassword", ""), hexadecimal.substr(0, 1023));
}
