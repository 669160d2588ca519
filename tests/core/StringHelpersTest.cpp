#include <gtest/gtest.h>

#include "core/ControlHelpers.h"
#include "core/DefaultCStringEncoding.h"
#include "core/StringEscapeConverter.h"
#include "core/StringHelpers.h"
#include "core/TextCharacters.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(StringEscapeConverter, FirstAddedRuleWinsBothWays) {
    auto converter = StringEscapeConverter::emptyConverter();
    converter.replace("a", "ab");
    converter.replace("ab", "x");
    EXPECT_EQ(converter.escape("ab"), "abb");
    EXPECT_EQ(converter.escape("xaby"), "xabby");
    // At each position "ab" (rule 1) is tried before "x" (rule 2).
    EXPECT_EQ(converter.unEscape("abx"), "aab");
    EXPECT_EQ(converter.unEscape("abb"), "ab");
}

TEST(StringEscapeConverter, TicketRulesRoundTripInOneWalk) {
    auto converter = StringEscapeConverter::emptyConverter();
    converter.replace("%", "%x25");
    converter.replace("'", "%x27");
    converter.replace(",", "%x2C");
    EXPECT_EQ(converter.escape("50%, 'A'"), "50%x25%x2C %x27A%x27");
    EXPECT_EQ(converter.unEscape("50%x25%x2C %x27A%x27"), "50%, 'A'");
    // What a rule has produced is not read again.
    EXPECT_EQ(converter.unEscape("%x25x27"), "%x27");
}

TEST(StringEscapeConverter, RuleMustFitTheRestAndEmptySidesNeverMatch) {
    auto converter = StringEscapeConverter::emptyConverter();
    converter.replace("", "never");
    converter.replace("abc", "1");
    converter.replace("\xC3\xA4", "ae");  // a two-byte character
    EXPECT_EQ(converter.escape("ab"), "ab");
    EXPECT_EQ(converter.escape("abcab\xC3\xA4"), "1abae");
    EXPECT_EQ(converter.unEscape("1ae"), "abc\xC3\xA4");
    EXPECT_EQ(StringEscapeConverter::emptyConverter().escape("a,b"), "a,b");
}

TEST(StringHelpers, ToAllowedForWindowsReplacesEachForbiddenCharacter) {
    EXPECT_EQ(toAllowedForWindows("Report/2024?", "_"), "Report_2024_");
    EXPECT_EQ(toAllowedForWindows("a\\b/c:d;e,f*g?h\"i<j>k|l", "-"), "a-b-c-d-e-f-g-h-i-j-k-l");
    EXPECT_EQ(toAllowedForWindows("x:y", ""), "xy");
    EXPECT_EQ(toAllowedForWindows("\xE8\xA1\xA8:1", "%%"), "\xE8\xA1\xA8%%1");
}

TEST(StringHelpers, BoolValueIfStringTakesTrueInAnyCaseAndNonZeroNumbers) {
    const std::pair<PlistValue, bool> cases[] = {
        {PlistValue("TRUE"), true},  {PlistValue("true"), true},    {PlistValue("True"), true},
        {PlistValue("yes"), false},  {PlistValue("1"), false},      {PlistValue("True "), false},
        {PlistValue(std::string("True\0x", 6)), false},             {PlistValue(1), true},
        {PlistValue(-2), true},      {PlistValue(0.5), true},       {PlistValue(0), false},
        {PlistValue(true), true},    {PlistValue(), false},         {PlistValue(PlistArray{PlistValue("True")}), false}};
    for (std::size_t index = 0; index < std::size(cases); ++index)
        EXPECT_EQ(boolValueIfString(cases[index].first), cases[index].second) << "case " << index;
}

TEST(StringHelpers, IsContain) {
    EXPECT_TRUE(isContain("MailNotifyJobEnd", "Job"));
    EXPECT_FALSE(isContain("MailNotifyJobEnd", "job"));
    EXPECT_FALSE(isContain("abc", ""));
    EXPECT_FALSE(isContain("", "a"));
}

TEST(StringHelpers, LengthsCountUtf8BytesLossilyAndCharactersAsTextFieldsDo) {
    EXPECT_EQ(lengthByBytes(""), 0u);
    EXPECT_EQ(lengthByBytes("\xE3\x81\x82\xC3\xA4"), 5u);
    EXPECT_EQ(lengthByBytes("\xF0\x9F\x94\x91"), 4u);
    // Ill-formed bytes convert lossily, one "?" each.
    EXPECT_EQ(toDefaultCString("a\xFF" "b\xE3\x81"), "a?b??");
    EXPECT_EQ(toDefaultCString("\xED\xA0\x80"), "???");  // an encoded surrogate
    EXPECT_EQ(lengthByBytes("a\xFF" "b\xE3\x81"), 5u);
    EXPECT_EQ(TextCharacters::characterLength("ab\xC3\xA4\xE3\x81\x82"), 4u);
    EXPECT_EQ(TextCharacters::characterLength("\xF0\x9F\x94\x91"), 2u);
    EXPECT_EQ(TextCharacters::characterLength("a\xFF"), 2u);
    EXPECT_EQ(TextCharacters::decodeCharacters("\xC3\xA4\xFFz"), (std::u32string{U'\u00E4', U'\uFFFD', U'z'}));
}

TEST(StringHelpers, PrecomposedJoinsCombiningMarksAndLeavesIllFormedTextAlone) {
    EXPECT_EQ(TextCharacters::precomposed(""), "");
    EXPECT_EQ(TextCharacters::precomposed("Mu\xCC\x88ller"), "M\xC3\xBCller");
    // Japanese voiced marks compose too: KA + combining voiced mark is GA.
    EXPECT_EQ(TextCharacters::precomposed("\xE3\x81\x8B\xE3\x82\x99"), "\xE3\x81\x8C");
    EXPECT_EQ(TextCharacters::precomposed("u\xCC\x88\xFF"), "u\xCC\x88\xFF");
}

TEST(ControlTitle, LabelSuffixIsDeleted) {
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Paper Type:"), "Paper Type");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Papiertyp : "), "Papiertyp");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("用紙種類："), "用紙種類");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Time 10:30"), "Time 10:30");
    EXPECT_EQ(stringByDeletingControlTitleSuffix("Staple "), "Staple ");
    EXPECT_EQ(stringByDeletingControlTitleSuffix(":"), "");
}

TEST(SetIfObjectForKey, StoresOnlyPresentValues) {
    PlistDictionary settings{{"Staple", "None"}};
    const PlistValue saddle("Saddle");
    EXPECT_TRUE(SetIfObjectForKey(settings, &saddle, "Staple"));
    EXPECT_FALSE(SetIfObjectForKey(settings, nullptr, "Fold"));
    const PlistValue nothing;
    EXPECT_FALSE(SetIfObjectForKey(settings, &nothing, "Punch"));
    EXPECT_EQ(settings, (PlistDictionary{{"Staple", "Saddle"}}));
}
