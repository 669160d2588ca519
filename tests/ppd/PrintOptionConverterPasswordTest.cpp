#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "PrintOptionTestSupport.h"
#include "TestSupport.h"
#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"
#include "core/PlistIO.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;

namespace {

// The stand-in library writes each byte as two hexadecimal digits, fails to encode a
// text starting "encode-fail" and to decode one of odd length.
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

TEST_F(EncodingLibrary, PasswordsAreEncodedForThePressWithTheFlag) {
    auto press = canonical({{"SecPrintPassword", "1234"}, {"RscPassword", ""}, {"AuthJobPassword", "pw"}});
    EXPECT_EQ(press.stringFor("SecPrintPassword", ""), "31323334");
    EXPECT_EQ(press.stringFor("RscPassword", "-"), "");
    EXPECT_EQ(press.stringFor("AuthJobPassword", ""), "7077");
    EXPECT_FALSE(loggedAnywhere("1234"));

    auto unflagged = canonical({{"SecPrintPassword", "1234"}}, 0);
    EXPECT_EQ(unflagged.stringFor("SecPrintPassword", ""), "1234");
}

TEST_F(EncodingLibrary, PasswordsAreDecodedFromThePressAlways) {
    auto panes = internal({{"SecPrintPassword", "31323334"}, {"RscPassword", "616263"}, {"AuthJobPassword", ""}});
    EXPECT_EQ(panes.stringFor("SecPrintPassword", ""), "1234");
    EXPECT_EQ(panes.stringFor("RscPassword", ""), "abc");
    EXPECT_EQ(panes.stringFor("AuthJobPassword", "-"), "");
}

TEST_F(EncodingLibrary, FailedEncodingIsLoggedAndLeavesTheEmptyBuffer) {
    auto press = canonical({{"RscPassword", "encode-fail-secret"}, {"SecPrintPassword", "ok"}});
    EXPECT_EQ(press.stringFor("RscPassword", "-"), "");
    EXPECT_EQ(press.stringFor("SecPrintPassword", ""), "6f6b");
    EXPECT_TRUE(logged("###### encode error"));
    EXPECT_FALSE(loggedAnywhere("encode-fail-secret"));
}

TEST_F(EncodingLibrary, FailedDecodingIsLoggedAndLeavesTheEmptyBuffer) {
    auto panes = internal({{"AuthJobPassword", "abc"}});
    EXPECT_EQ(panes.stringFor("AuthJobPassword", "-"), "");
    EXPECT_TRUE(logged("###### decode error"));
}

TEST_F(EncodingLibrary, WithoutTheLibraryPasswordsCannotBeEncoded) {
    unloadEncDec();
    auto press = canonical({{"SecPrintPassword", "1234"}});
    EXPECT_EQ(press.stringFor("SecPrintPassword", "-"), "");
    EXPECT_TRUE(logged("###### encode error"));
}

// The answer is read through a buffer of 1024 bytes, so at most 1023 characters arrive.
TEST_F(EncodingLibrary, AnswerIsCutToTheBuffer) {
    std::string hexadecimal;
    for (int index = 0; index < 600; ++index) hexadecimal += "78";
    auto press = canonical({{"SecPrintPassword", std::string(600, 'x')}});
    EXPECT_EQ(press.stringFor("SecPrintPassword", ""), hexadecimal.substr(0, 1023));
}

TEST_F(EncodingLibrary, PasswordsSurviveTheRoundTrip) {
    PlistDictionary original = *PlistIO::readFile(OstrinTest::dataPath("ppd/InternalPrintOption.plist"))->dictionary();
    original.set("SecPrintPassword", "0815");
    original.set("RscPassword", "r\xC3\xA9sum\xC3\xA9");
    original.set("AuthJobPassword", "Pa55;word");
    const PlistDictionary press = canonical(original);
    EXPECT_EQ(press.stringFor("RscPassword", ""), "72c3a973756dc3a9");
    const PlistDictionary restored = internal(press);
    for (const char* key : {"SecPrintPassword", "RscPassword", "AuthJobPassword"})
        EXPECT_EQ(restored.stringFor(key, ""), original.stringFor(key, "")) << key;
}
