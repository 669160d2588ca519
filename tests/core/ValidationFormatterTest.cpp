#include <gtest/gtest.h>

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/MailAddressFormatter.h"
#include "core/PageRangeFormatter.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

MailAddressFormatter mailFormatter() {
    return MailAddressFormatter(0, 128, MailAddressFormatter::mailAddressCharacterSet(), "Alert_MailAddress");
}

PageRangeFormatter pageFormatter() { return PageRangeFormatter(0, 64, PageRangeFormatter::pageRangeCharacterSet(), ""); }

}  // namespace

TEST(MailAddressFormatter, EveryAddressBetweenSeparatorsNeedsTwoCharacters) {
    const auto formatter = mailFormatter();
    for (const char* valid : {"ab", "op@press.example;chief@press.example", " ;, op@press.example , chief@press.example; ",
                              "op@press.example\tchief@press.example"})
        EXPECT_TRUE(formatter.isValid(valid)) << valid;
    for (const char* invalid : {"a", "op@press.example;x", "x;op@press.example", ";;, ,", " ", ""})
        EXPECT_FALSE(formatter.isValid(invalid)) << invalid;
}

TEST(MailAddressFormatter, TextIsReadAsCStringOfAtMost128Bytes) {
    const auto formatter = mailFormatter();
    const std::string fits = std::string(120, 'a') + "@pr.org";  // 127 bytes
    EXPECT_TRUE(formatter.isValid(fits));
    EXPECT_TRUE(formatter.isValid(fits + "g"));
    EXPECT_FALSE(formatter.isValid(fits + "gg"));
    EXPECT_TRUE(formatter.isValid(std::string("ab\0x", 4)));
    EXPECT_FALSE(formatter.isValid(std::string("\0ab", 3)));
}

TEST(MailAddressFormatter, CharacterSetAndEscapeApply) {
    auto formatter = MailAddressFormatter::setValidationFormatter(64, MailAddressFormatter::mailAddressCharacterSet(),
                                                                  "Alert_MailAddress");
    EXPECT_FALSE(formatter->didChange("op\xC3\xA4@x", {6, 0}).accepted);
    EXPECT_TRUE(formatter->didChange("op+1@x.example; b@y", {19, 0}).accepted);
    formatter->replace(";", ",");
    std::string value;
    ASSERT_TRUE(formatter->getObjectValue(&value, "a@b;c@d", nullptr));
    EXPECT_EQ(value, "a@b,c@d");
}

TEST(MailAddressFieldFormatter, LimitsTypingAndNamesTheProblemInTheUsersLanguage) {
    EXPECT_EQ(MailAddressFormatter::mailAddressFieldFormatter()->messageString(), "Alert_InvalidMailAddress");
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    PreferredLanguages::setFirst("de");
    const auto formatter = MailAddressFormatter::mailAddressFieldFormatter();
    PreferredLanguages::setFirst("en");
    SetNSBundleForLocalizedString(nullptr);
    EXPECT_EQ(formatter->messageString().rfind("Geben Sie eine oder mehrere E-Mail-Adressen", 0), 0u);
    EXPECT_FALSE(formatter->didChange(std::string(129, 'a'), {129, 0}).accepted);
    EXPECT_TRUE(formatter->didChange(std::string(128, 'a'), {128, 0}).accepted);
    const auto refused = formatter->controlTextShouldEndEditing("x; op@press.example", {"Mail Address", true});
    EXPECT_FALSE(refused.shouldEndEditing);
    EXPECT_EQ(refused.message, formatter->messageString());
}

TEST(ValidationFormatter, InvalidTextKeepsEditingWhileDialogIsVisible) {
    const auto formatter = mailFormatter();
    const EndEditingDecision invalid = formatter.controlTextShouldEndEditing("x", {"Mail"});
    EXPECT_FALSE(invalid.shouldEndEditing);
    EXPECT_EQ(invalid.message, "Alert_MailAddress");
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("x", {"Mail", false}).shouldEndEditing);
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("", {"Mail"}).shouldEndEditing);
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("op@press.example", {"Mail"}).shouldEndEditing);
    EXPECT_EQ(pageFormatter().controlTextShouldEndEditing("0", {"Pages"}).message, "--");
}

TEST(ValidationFormatter, SizeMinimumComesBeforeValidity) {
    ValidationFormatter formatter(5, 20, CharacterSet::characterSetWithRange(U'a', 26), "invalid");
    const EndEditingDecision decision = formatter.controlTextShouldEndEditing("abc", {"Code"});
    EXPECT_FALSE(decision.shouldEndEditing);
    EXPECT_EQ(decision.message, "Please specify at least 5 characters for Code.");
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("abcde", {"Code"}).shouldEndEditing);
}

TEST(PageRangeFormatter, ValidAndInvalidRanges) {
    const auto formatter = pageFormatter();
    for (const char* text : {"1-3,5", "", "   ", "7", "2-2", "1 - 3 , 5", "4-", "-4", "1-3\n8-9", "2147483647",
                             "1,99999999999999999999", "1,,2"})
        EXPECT_TRUE(formatter.isValid(text)) << '"' << text << '"';
    for (const char* text : {"0", "5-3", "-", "3x", "1,-", "0-3", "1-3-5", "x", "1;2", "+3", "2147483648",
                             "99999999999999999999", "1-0", "\xEF\xBC\x91"})
        EXPECT_FALSE(formatter.isValid(text)) << '"' << text << '"';
}

TEST(PageRangeFormatter, RangeMustTouchTheInterval) {
    EXPECT_TRUE(PageRangeFormatter::_isValidPageRange("3-8", 5, 10));
    EXPECT_TRUE(PageRangeFormatter::_isValidPageRange("9-20", 5, 10));
    EXPECT_FALSE(PageRangeFormatter::_isValidPageRange("1-4,11", 5, 10));
    EXPECT_FALSE(PageRangeFormatter::_isValidPageRange("-", 5, 10));
    // A missing first page is the minimum.
    EXPECT_TRUE(PageRangeFormatter::_isValidPageRange("-6", 5, 10));
    EXPECT_FALSE(PageRangeFormatter::_isValidPageRange("-4", 5, 10));
}

TEST(PageRangeFormatter, TypingIsLimitedToItsCharacters) {
    auto formatter = PageRangeFormatter::setValidationFormatter(16, PageRangeFormatter::pageRangeCharacterSet(),
                                                                "Alert_PhysicalPageRange");
    EXPECT_TRUE(formatter->didChange("1-3, 5", {6, 0}).accepted);
    EXPECT_FALSE(formatter->didChange("1-3, 5a", {7, 0}).accepted);
    EXPECT_EQ(formatter->controlTextShouldEndEditing("5-3", {"Pages"}).message, "Alert_PhysicalPageRange");
}
