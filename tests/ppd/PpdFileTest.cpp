#include <gtest/gtest.h>

#include <cups/ppd.h>

#include <cstdlib>
#include <cstring>

#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "ppd/PpdFileExt.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::dataPath;

namespace {

std::unique_ptr<PpdFile> openFixture(const char* name) {
    std::unique_ptr<PpdFile> ppd = PpdFile::initWithContentsOfFile(dataPath(std::string("ppd/") + name));
    EXPECT_TRUE(ppd) << name;
    return ppd;
}

using Strings = std::vector<std::string>;

}  // namespace

TEST(PpdFile, MissingOrMalformedFileAnswersNothingWithTheReason) {
    std::string error;
    EXPECT_FALSE(PpdFile::initWithContentsOfFile(dataPath("ppd/no-such.ppd"), &error));
    EXPECT_EQ(error, "no such file");
    EXPECT_FALSE(PpdFile::initWithContentsOfFile(dataPath("ppd"), &error));
    EXPECT_EQ(error, "no such file");
    EXPECT_FALSE(PpdFile::initWithContentsOfFile(dataPath("ppd/malformed.ppd"), &error));
    EXPECT_EQ(error, "Missing PPD-Adobe-4.x header on line 1");
    EXPECT_FALSE(PpdFile::initWithContentsOfFile(std::string("a\0b", 3)));
}

TEST(PpdFile, EveryQueryWithoutPpdAnswersNothing) {
    PpdFile ppd(nullptr);
    EXPECT_FALSE(ppd.isExists("QZMediaType"));
    EXPECT_FALSE(ppd.isExists("QZMediaType", "Plain"));
    EXPECT_FALSE(ppd.optionKeywords("QZMediaType"));
    EXPECT_FALSE(ppd.optionAliases("QZMediaType"));
    EXPECT_EQ(ppd.uiType("QZMediaType"), 0);
    EXPECT_TRUE(ppd.defaultOptionChoice("QZMediaType").isNull());
    EXPECT_FALSE(ppd.product());
    EXPECT_TRUE(ppd.defaultValueDictionary().empty());
    EXPECT_EQ(ppd.markOption("QZMediaType", "Plain"), 0);
    EXPECT_EQ(ppd.stringEncoding(), PpdStringEncoding::ASCII);
}

TEST(PpdFile, AnswersChoicesTextsAndTypesInPpdOrder) {
    auto ppd = openFixture("options.ppd");
    EXPECT_EQ(ppd->product(), "(Options Test Press)");
    EXPECT_EQ(ppd->optionKeywords("QZMediaType"), (Strings{"Plain", "Transparency", "Heavyweight1"}));
    EXPECT_EQ(ppd->optionAliases("QZMediaType"),
              (Strings{"Plain Paper", "Transparency", "Heavyweight 1"}));
    EXPECT_EQ(ppd->optionAlias("QZMediaType", "Heavyweight1"), "Heavyweight 1");
    EXPECT_FALSE(ppd->optionAlias("QZMediaType", "Heavyweight2"));
    EXPECT_EQ(ppd->mainAlias("QZMediaType"), "Media Type");
    EXPECT_EQ(ppd->uiType("QZMediaType"), PpdUIPickOne);
    EXPECT_EQ(ppd->uiType("SecPrint"), PpdUIBoolean);
    EXPECT_EQ(ppd->uiType("NoSuchOption"), 0);
    EXPECT_TRUE(ppd->isExists("QZMediaType", "Transparency"));
    EXPECT_FALSE(ppd->isExists("QZMediaType", "transparency"));
    EXPECT_FALSE(ppd->isExists("NoSuchOption"));
    EXPECT_FALSE(ppd->optionKeywords("NoSuchOption"));
    // An option without choices exists but has no choice.
    EXPECT_TRUE(ppd->isExists("StkName"));
    EXPECT_FALSE(ppd->isExists("StkName", "None"));
    EXPECT_EQ(ppd->optionKeywords("StkName"), Strings{});
    EXPECT_EQ(ppd->defaultOptionChoice("StkName"), PlistValue("None"));
}

TEST(PpdFile, BooleanChoiceIsTrueOnlyForTheExactWord) {
    auto ppd = openFixture("options.ppd");
    // The PPD writes the default of this option as "true".
    EXPECT_EQ(ppd->defaultOptionChoice("PagePrintOnCenter"), PlistValue(false));
    EXPECT_EQ(ppd->defaultOptionChoice("SecPrint"), PlistValue(true));
    EXPECT_EQ(ppd->defaultOptionChoice("QZMediaType"), PlistValue("Plain"));
    ppd->markOption("SecPrint", "False");
    EXPECT_EQ(ppd->findMarkedChoice("SecPrint"), PlistValue(false));
    ppd->markOption("SecPrint", "True");
    EXPECT_EQ(ppd->findMarkedChoice("SecPrint"), PlistValue(true));
}

TEST(PpdFile, KeywordLongerThanFortyCharactersIsNotFound) {
    auto ppd = openFixture("keywords.ppd");
    const std::string option = "ImpositionFormPositionWidthFromTheLeftE";
    const std::string forty = "AbcdefghijAbcdefghijAbcdefghijAbcdefghij";
    ASSERT_EQ(forty.size(), 40u);
    EXPECT_TRUE(ppd->isExists(option, forty));
    EXPECT_FALSE(ppd->isExists(option, forty + "K"));
    EXPECT_FALSE(ppd->isExists(option + "Dg"));
    EXPECT_FALSE(ppd->isExists(option, "Z\xC3\xA9ro"));
    EXPECT_EQ(ppd->markOption(option, forty + "K"), 0);
    EXPECT_TRUE(ppd->findMarkedChoice(option).isNull());
    EXPECT_EQ(ppd->markOption(option, forty), 0);
    EXPECT_EQ(ppd->findMarkedChoice(option), PlistValue(forty));
}

// Latin-1 PPDs read as Mac Roman, Japanese as code page 932 (0x5C a backslash, not the
// yen sign plain Shift JIS makes of it), Chinese as code page 936; texts outside ASCII of
// an unknown encoding fall back to the keyword or to nothing.
TEST(PpdFile, TextsAreReadInTheLanguagesEncoding) {
    struct Case {
        const char* fixture;
        PpdStringEncoding encoding;
        std::optional<std::string> mainAlias;
        const char* choice;
        std::string alias;
        std::optional<std::string> product;
    };
    const Case cases[] = {
        {"latin1.ppd", PpdStringEncoding::MacRoman, "M\u00e9dia", "Coated", "Couch\u00e9", "(Caf\u00e9 Press)"},
        {"japanese.ppd", PpdStringEncoding::MacJapanese, "\u7528\u7d19\u30bf\u30a4\u30d7", "Coated",
         "Ink\\\\paper\uff5e\u30b3\u30fc\u30c8", "(\u30c6\u30b9\u30c8\u5370\u5237\u6a5f)"},
        {"chinese.ppd", PpdStringEncoding::MacSimplifiedChinese, "\u7eb8\u5f20\u7c7b\u578b", "Coated",
         "\u94dc\u7248\u7eb8", std::nullopt},
        {"western.ppd", PpdStringEncoding::ASCII, std::nullopt, "Glace", "Glace", "(Plain Press)"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.fixture);
        auto ppd = openFixture(each.fixture);
        ASSERT_TRUE(ppd);
        EXPECT_EQ(ppd->stringEncoding(), each.encoding);
        EXPECT_EQ(ppd->mainAlias("QZMediaType"), each.mainAlias);
        EXPECT_EQ(ppd->optionAlias("QZMediaType", each.choice), each.alias);
        if (each.product) {
            EXPECT_EQ(ppd->product(), each.product);
        }
    }
}

TEST(PpdFile, DefaultValueDictionaryCoversGroupsAndSubgroups) {
    auto ppd = openFixture("options.ppd");
    const PlistDictionary expected{
        {"PageSize", "A4"},      {"QZMediaType", "Plain"}, {"PagePrintOnCenter", false},
        {"SecPrint", true},      {"StkName", "None"},      {"DuplexMode", "None"},
        {"StapleMode", "None"},  {"OutputTray", "Auto"},   {"CreaseNum", "2"}};
    EXPECT_EQ(ppd->defaultValueDictionary(), expected);

    // libcups on this platform files subgroup options under their group; a host's
    // handle may keep them apart, so the group "Output" becomes a subgroup of "General".
    ppd_file_t* handle = ppd->ppdFile();
    ASSERT_EQ(handle->num_groups, 2);
    auto* subgroup = static_cast<ppd_group_t*>(std::calloc(1, sizeof(ppd_group_t)));
    std::memcpy(subgroup, &handle->groups[1], sizeof(ppd_group_t));
    std::memset(&handle->groups[1], 0, sizeof(ppd_group_t));
    handle->groups[0].subgroups = subgroup;
    handle->groups[0].num_subgroups = 1;
    handle->num_groups = 1;
    EXPECT_EQ(ppd->defaultValueDictionary(), expected);
    EXPECT_EQ(ppd->optionNames(), expected.keys());
}

TEST(PpdFile, MarkingAnswersTheConflictsLibcupsCounts) {
    auto ppd = openFixture("options.ppd");
    ppd->markDefaults();
    EXPECT_EQ(ppd->findMarkedChoice("QZMediaType"), PlistValue("Plain"));
    EXPECT_EQ(ppd->markOption("DuplexMode", "DuplexTumble"), 0);
    EXPECT_EQ(ppd->markOption("QZMediaType", "Transparency"), 1);
    EXPECT_EQ(ppd->findMarkedChoice("QZMediaType"), PlistValue("Transparency"));
    EXPECT_EQ(ppd->markOption("StapleMode", "Saddle"), 1);
    EXPECT_EQ(ppd->markOption("OutputTray", "Toptray"), 2);
    EXPECT_EQ(ppd->markOption("QZMediaType", "Plain"), 1);
    EXPECT_EQ(ppd->markOption("StapleMode", "None"), 0);
}

TEST(PpdFileExt, AnswersAsPpdFileAndAddsTheOptionsThePpdLacks) {
    auto ppd = PpdFileExt::initWithContentsOfFile(dataPath("ppd/options.ppd"));
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(ppd->isExists("QZMediaType", "Transparency"));
    EXPECT_FALSE(ppd->isExists("QZRIPMode"));
    const PlistDictionary* ripMode = ppd->extOptions().find("QZRIPMode")->dictionary();
    ASSERT_TRUE(ripMode);
    EXPECT_EQ(ripMode->stringFor("defaultValue"), "CPSI");
    EXPECT_EQ(*ripMode->find("options"), PlistValue(PlistArray{"CPSI", "APPE"}));
}

TEST(PpdFileExt, LocalizesOptionKeywordsByMainKeywordAndChoice) {
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    PreferredLanguages::setFirst("de");
    EXPECT_EQ(PpdFileExt::localizedOptionKeyword("QZMediaType", "Transparency"), "Folie");
    EXPECT_EQ(PpdFileExt::localizedOptionKeyword("QZMediaType", "NoSuchMedia"),
              "QZMediaType:NoSuchMedia");
    PreferredLanguages::setFirst("");
    SetNSBundleForLocalizedString(nullptr);
}
