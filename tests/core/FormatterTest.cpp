#include <gtest/gtest.h>

#include "core/Bundle.h"
#include "core/FormatterAttachment.h"
#include "core/LocalizedString.h"
#include "core/MailAddressFormatter.h"
#include "core/MaxBytesFormatterWithEscapeAndCharacterSet.h"
#include "core/MaxLengthFormatterWithCharacterSet.h"
#include "core/MaxLengthFormatterWithEscapeAndCharacterSet.h"
#include "core/PageRangeFormatter.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// Types text one piece at a time, as a field reports each change with the caret at its end.
void type(TextLimitFormatter& formatter, std::string& field, std::string_view piece) {
    const std::string edited = field + std::string(piece);
    const EditDecision decision = formatter.didChange(edited, {edited.size(), 0});
    field = decision.text;
}

MailAddressFormatter mailFormatter() {
    return MailAddressFormatter(0, 128, MailAddressFormatter::mailAddressCharacterSet(), "Alert_MailAddress");
}

PageRangeFormatter pageFormatter() { return PageRangeFormatter(0, 64, PageRangeFormatter::pageRangeCharacterSet(), ""); }

}  // namespace

TEST(MaxBytesFormatter, ByteBeyondTheLimitIsRefusedAndTheUndoTextRestored) {
    MaxBytesFormatter formatter(0, 10);
    ASSERT_TRUE(formatter.didChange("abcdefghij", {7, 2}).accepted);
    const EditDecision refused = formatter.didChange("abcdefghijk", {11, 0});
    EXPECT_FALSE(refused.accepted);
    EXPECT_EQ(refused.text, "abcdefghij");
    EXPECT_EQ(refused.selection, (TextSelection{7, 2}));
    EXPECT_EQ(formatter.undoText(), "abcdefghij");
    // A two-byte character at nine bytes does not fit either.
    auto attached = MaxBytesFormatter::setMaxBytesFormatter(10);
    std::string field;
    type(*attached, field, "abcdefghi");
    type(*attached, field, "\xC3\xA4");
    EXPECT_EQ(field, "abcdefghi");
    type(*attached, field, "j");
    EXPECT_EQ(field, "abcdefghij");
}

TEST(MaxLengthFormatter, CountsCharactersNotBytes) {
    MaxLengthFormatter formatter(0, 3);
    std::string field;
    type(formatter, field, "\xC3\xA4\xE3\x81\x82z");  // 3 characters, 6 bytes
    EXPECT_EQ(field, "\xC3\xA4\xE3\x81\x82z");
    type(formatter, field, "!");
    EXPECT_EQ(field, "\xC3\xA4\xE3\x81\x82z");
    // A character outside the Basic Multilingual Plane counts twice, as the field counts it.
    MaxLengthFormatter two(0, 2);
    EXPECT_TRUE(two.didChange("\xF0\x9F\x94\x91", {2, 0}).accepted);
    EXPECT_FALSE(two.didChange("a\xF0\x9F\x94\x91", {3, 0}).accepted);
}

TEST(MaxBytesFormatter, ControlCharactersOnlyWhenEnabled) {
    MaxBytesFormatter formatter(0, 20);
    EXPECT_TRUE(formatter.containNotAllowedCharactor("a\tb"));
    EXPECT_TRUE(formatter.containNotAllowedCharactor("a\xE2\x80\x8B"));  // zero-width space
    EXPECT_FALSE(formatter.containNotAllowedCharactor("a b \xC3\xA4"));
    EXPECT_FALSE(formatter.didChange("line\n", {5, 0}).accepted);
    formatter.setControlCharactersEnabled(true);
    EXPECT_TRUE(formatter.didChange("line\n", {5, 0}).accepted);
}

TEST(MaxLengthFormatterWithCharacterSet, RefusesCharactersOutsideTheSet) {
    auto formatter = MaxLengthFormatterWithCharacterSet::setMaxLengthFormatter(
        5, CharacterSet::characterSetWithCharactersInString("0123456789"));
    std::string field;
    type(*formatter, field, "12");
    type(*formatter, field, "a");
    EXPECT_EQ(field, "12");
    type(*formatter, field, "345");
    type(*formatter, field, "6");
    EXPECT_EQ(field, "12345");
    EXPECT_TRUE(formatter->containNotAllowedCharactor("1\x01"));
}

TEST(MaxBytesFormatter, MinimumKeepsEditingWithALocalisedMessageButEmptyMayEnd) {
    SetNSBundleForLocalizedString(nullptr);
    MaxBytesFormatter formatter(3, 10);
    const EndEditingDecision tooShort = formatter.controlTextShouldEndEditing("ab", {"Favorite name"});
    EXPECT_FALSE(tooShort.shouldEndEditing);
    EXPECT_EQ(tooShort.message, "Please specify at least 3 characters for Favorite name.");
    EXPECT_EQ(formatter.controlTextShouldEndEditing("ab", {}).message, "Please specify at least 3 characters for --.");
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("", {"Favorite name"}).shouldEndEditing);
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("abc", {"Favorite name"}).shouldEndEditing);
    // Two characters of two bytes each reach a minimum of 3 bytes, not of 3 characters.
    EXPECT_TRUE(formatter.controlTextShouldEndEditing("\xC3\xA4\xC3\xB6", {"x"}).shouldEndEditing);
    EXPECT_FALSE(MaxLengthFormatter(3, 10).controlTextShouldEndEditing("\xC3\xA4\xC3\xB6", {"x"}).shouldEndEditing);

    SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    MaxLengthFormatter four(4, 10);
    PreferredLanguages::setFirst("de-DE");
    EXPECT_EQ(four.controlTextShouldEndEditing("ab", {"Name"}).message, "Bitte geben Sie für Name mindestens 4 Zeichen an.");
    PreferredLanguages::setFirst("ja");
    EXPECT_EQ(four.controlTextShouldEndEditing("ab", {"Name"}).message, "Nameには4文字以上を指定してください。");
    PreferredLanguages::setFirst("");
    SetNSBundleForLocalizedString(nullptr);
}

TEST(MaxBytesFormatter, ObjectValueNeedsAPlaceForTheResult) {
    MaxBytesFormatter bytes(0, 10);
    std::string error;
    EXPECT_FALSE(bytes.getObjectValue(nullptr, "abc", &error));
    EXPECT_EQ(error, "NULL Object pointer to MaxBytesFormatter");
    EXPECT_FALSE(MaxLengthFormatter(0, 10).getObjectValue(nullptr, "abc", nullptr));
    std::string value;
    EXPECT_TRUE(bytes.getObjectValue(&value, "a(b)", &error));
    EXPECT_EQ(value, "a(b)");
    EXPECT_EQ(bytes.stringForObjectValue(PlistValue(5)), "");
}

TEST(EscapeFormatter, ValueIsEscapedAndShownUnescaped) {
    MaxBytesFormatterWithEscapeAndCharacterSet formatter(0, 20, CharacterSet::characterSetWithRange(U' ', 95));
    formatter.replace("'", "%x27");
    formatter.replace(",", "%x2C");
    std::string value;
    ASSERT_TRUE(formatter.getObjectValue(&value, "it's a,b", nullptr));
    EXPECT_EQ(value, "it%x27s a%x2Cb");
    EXPECT_EQ(formatter.stringForObjectValue(PlistValue(value)), "it's a,b");
    EXPECT_TRUE(formatter.containNotAllowedCharactor("\xC3\xA4"));
}

TEST(EscapeFormatter, JobNameRulesRoundTripAndTheLimitCountsTheTextAsTyped) {
    auto formatter = attachMaxBytesFormatterWithEscape(255);
    std::string value;
    ASSERT_TRUE(formatter->getObjectValue(&value, "Report (draft) \\\\server", nullptr));
    EXPECT_EQ(value, "Report \\(draft\\) \\\\\\\\server");
    EXPECT_EQ(formatter->stringForObjectValue(PlistValue(value)), "Report (draft) \\\\server");
    // A text that looks escaped already is escaped again, so it comes back unchanged.
    ASSERT_TRUE(formatter->getObjectValue(&value, "\\(", nullptr));
    EXPECT_EQ(formatter->stringForObjectValue(PlistValue(value)), "\\(");

    auto five = attachMaxLengthFormatterWithEscape(5);
    EXPECT_TRUE(five->didChange("((((\\", {5, 0}).accepted);
    ASSERT_TRUE(five->getObjectValue(&value, "((((\\", nullptr));
    EXPECT_EQ(value, "\\(\\(\\(\\(\\\\");
    EXPECT_FALSE(five->didChange("((((((", {6, 0}).accepted);
}

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
