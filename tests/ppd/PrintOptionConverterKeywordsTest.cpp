#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "PrintOptionTestSupport.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
using Converter = PrintOptionConverter;

namespace {

constexpr const char* kPaperTypeAll =
    "PaperType_MediaTypeTabbed_MediaTypeCoatingMaterial_MediaTypePreprinted_MediaTypeDrilled_PaperTypeCustomNumber";
constexpr const char* kPaperTypeBypassAll =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

std::pair<std::string, std::string> punchOf(const char* joined) {
    auto printOption = canonical({{"Punch_PunchHoles", joined}});
    EXPECT_FALSE(printOption.contains("Punch_PunchHoles"));
    return {printOption.stringFor("Punch", ""), printOption.stringFor("PunchHoles", "")};
}

std::string joinedPunchOf(const char* punch, const char* holes) {
    auto printOption = internal({{"Punch", punch}, {"PunchHoles", holes}});
    EXPECT_FALSE(printOption.contains("Punch"));
    EXPECT_FALSE(printOption.contains("PunchHoles"));
    return printOption.stringFor("Punch_PunchHoles", "");
}

}  // namespace

TEST(PrintOptionConverterKeywords, SplitSetsEachPartAndRemovesTheJoinedKey) {
    PlistDictionary printOption{{"A_B_C", "x_y_z"}, {"B", "old"}};
    Converter::splitKeyword(printOption, "A_B_C");
    EXPECT_EQ(printOption, (PlistDictionary{{"B", "y"}, {"A", "x"}, {"C", "z"}}));
}

TEST(PrintOptionConverterKeywords, SplitLeavesMismatchedOrEmptyValuesAlone) {
    PlistDictionary mismatched{{"A_B", "x_y_z"}};
    Converter::splitKeyword(mismatched, "A_B");
    EXPECT_EQ(mismatched, (PlistDictionary{{"A_B", "x_y_z"}}));
    PlistDictionary empty{{"A_B", ""}};
    Converter::splitKeyword(empty, "A_B");
    EXPECT_EQ(empty, (PlistDictionary{{"A_B", ""}}));
    PlistDictionary absent{{"A", "x"}};
    Converter::splitKeyword(absent, "A_B");
    EXPECT_EQ(absent, (PlistDictionary{{"A", "x"}}));
}

TEST(PrintOptionConverterKeywords, JoinWritesBooleansAndNumbersByTheirTruth) {
    PlistDictionary printOption{{"A", "x"}, {"B", true}, {"C", 0}, {"D", "keep"}};
    Converter::joinKeyword(printOption, "A_B_C");
    EXPECT_EQ(printOption, (PlistDictionary{{"D", "keep"}, {"A_B_C", "x_True_False"}}));
}

TEST(PrintOptionConverterKeywords, JoinWithAMissingOrEmptyPartChangesNothing) {
    const PlistDictionary missing{{"A", "x"}, {"C", "z"}};
    PlistDictionary printOption = missing;
    Converter::joinKeyword(printOption, "A_B_C");
    EXPECT_EQ(printOption, missing);
    const PlistDictionary empty{{"A", "x"}, {"B", ""}, {"C", "z"}};
    printOption = empty;
    Converter::joinKeyword(printOption, "A_B_C");
    EXPECT_EQ(printOption, empty);
}

TEST(PrintOptionConverterKeywords, SwapExchangesOnlyWhenBothKeysExist) {
    PlistDictionary both{{"A", "1"}, {"B", "2"}};
    Converter::swapKeywordValue(both, "A", "B");
    EXPECT_EQ(both, (PlistDictionary{{"A", "2"}, {"B", "1"}}));
    PlistDictionary one{{"A", "1"}};
    Converter::swapKeywordValue(one, "A", "B");
    EXPECT_EQ(one, (PlistDictionary{{"A", "1"}}));
}

TEST(PrintOptionConverterKeywords, PunchSplitsIntoPositionAndHoles) {
    EXPECT_EQ(punchOf("None"), std::make_pair(std::string("None"), std::string("None")));
    EXPECT_EQ(punchOf("LeftHoles2"), std::make_pair(std::string("Left"), std::string("Holes2")));
    EXPECT_EQ(punchOf("RightHolesMulti"), std::make_pair(std::string("Right"), std::string("HolesMulti")));
    EXPECT_EQ(punchOf("TopHoles3"), std::make_pair(std::string("Top"), std::string("Holes3")));
    EXPECT_EQ(punchOf("BottomHoles4"), std::make_pair(std::string("Bottom"), std::string("Holes4")));
    EXPECT_EQ(punchOf("MixSizeHoles4"), std::make_pair(std::string("MixSize"), std::string("Holes4")));
    EXPECT_EQ(punchOf("MixSizeHolesMulti"), std::make_pair(std::string("None"), std::string("None")));
    EXPECT_EQ(punchOf("leftholes2"), std::make_pair(std::string("None"), std::string("None")));
}

TEST(PrintOptionConverterKeywords, PunchJoinsBackAndUnknownPairsReadAsNone) {
    for (const char* position : {"Left", "Right", "Top", "Bottom"})
        for (const char* holes : {"Holes2", "Holes3", "Holes4", "HolesMulti"})
            EXPECT_EQ(joinedPunchOf(position, holes), std::string(position) + holes);
    EXPECT_EQ(joinedPunchOf("MixSize", "Holes3"), "MixSizeHoles3");
    EXPECT_EQ(joinedPunchOf("MixSize", "HolesMulti"), "None");
    EXPECT_EQ(joinedPunchOf("None", "Holes2"), "None");
    EXPECT_EQ(joinedPunchOf("Middle", "Holes2"), "None");
    EXPECT_EQ(joinedPunchOf("Left", "Holes5"), "None");
    // Without both keys nothing is joined.
    EXPECT_EQ(internal({{"Punch", "Left"}}), withSinglePageImposition({{"Punch", "Left"}}));
}

TEST(PrintOptionConverterKeywords, OutputOrderSplitsIntoPageOrderAndOutputMode) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"FaceDown", "Normal", "FaceDown"},
        {"FaceUp", "Normal", "FaceUp"},
        {"FaceUpReverse", "Reverse", "FaceUp"},
        {"FaceDownReverse", "Reverse", "FaceDown"},
        {"Sideways", "Normal", "FaceUp"},
    };
    for (const auto& [joined, pageOrder, outputMode] : rows) {
        auto printOption = canonical({{"PageOrder_new", joined}});
        EXPECT_EQ(printOption.stringFor("PageOrder", ""), pageOrder) << joined;
        EXPECT_EQ(printOption.stringFor("OutputMode", ""), outputMode) << joined;
        EXPECT_FALSE(printOption.contains("PageOrder_new"));
    }
}

TEST(PrintOptionConverterKeywords, OutputOrderJoinsBackWithFaceDownForUnknownPairs) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"Normal", "FaceDown", "FaceDown"},
        {"Normal", "FaceUp", "FaceUp"},
        {"Reverse", "FaceDown", "FaceDownReverse"},
        {"Reverse", "FaceUp", "FaceUpReverse"},
        {"Reverse", "Sideways", "FaceDown"},
    };
    for (const auto& [pageOrder, outputMode, joined] : rows) {
        auto printOption = internal({{"PageOrder", pageOrder}, {"OutputMode", outputMode}});
        EXPECT_EQ(printOption, withSinglePageImposition({{"PageOrder_new", joined}})) << pageOrder << outputMode;
    }
    EXPECT_EQ(internal({{"OutputMode", "FaceUp"}}), withSinglePageImposition({{"OutputMode", "FaceUp"}}));
}

TEST(PrintOptionConverterKeywords, StackerTypeFollowsEachNonEmptyTray) {
    auto printOption = canonical({{"QVInputSlot", "TrayStk"},
                                  {"BlankPapersFrontTray", "Tray2"},
                                  {"BlankPapersBackTray", "TrayStk"},
                                  {"SeparatorsTray", ""},
                                  {"Imposition1stTray", "TrayMSI"},
                                  {"CoverPageTray", "TrayStk"}});
    EXPECT_EQ(printOption.stringFor("StkType", ""), "Name");
    EXPECT_EQ(printOption.stringFor("BlankPapersFrontStkType", ""), "Property");
    EXPECT_EQ(printOption.stringFor("BlankPapersBackStkType", ""), "Name");
    EXPECT_FALSE(printOption.contains("SeparatorsStkType"));
    EXPECT_EQ(printOption.stringFor("Imposition1stStkType", ""), "Property");
    EXPECT_EQ(printOption.stringFor("CoverPageStkType", ""), "Name");
    // Reading back leaves the stacker types where they are.
    auto restored = internal(printOption);
    EXPECT_EQ(restored.stringFor("StkType", ""), "Name");
}

TEST(PrintOptionConverterKeywords, PaperTypeKeysSplitForThePpd) {
    auto printOption = canonical({{kPaperTypeAll, "Plain_False_Uncoated_False_False_0"},
                                  {kPaperTypeBypassAll, "Coated1_True_Gloss_False_True_3"}});
    EXPECT_FALSE(printOption.contains(kPaperTypeAll));
    EXPECT_FALSE(printOption.contains(kPaperTypeBypassAll));
    EXPECT_EQ(printOption.stringFor("PaperType", ""), "Plain");
    EXPECT_EQ(printOption.stringFor("MediaTypeCoatingMaterial", ""), "Uncoated");
    EXPECT_EQ(printOption.stringFor("PaperTypeCustomNumber", ""), "0");
    EXPECT_EQ(printOption.stringFor("PaperTypeBypass", ""), "Coated1");
    EXPECT_EQ(printOption.stringFor("MediaTypeDrilledBypass", ""), "True");
    EXPECT_EQ(printOption.stringFor("PaperTypeCustomNumberBypass", ""), "3");

    auto shortKey = canonical({{"PaperType_MediaTypeTabbed", "Recycled_True"}});
    EXPECT_EQ(shortKey.stringFor("PaperType", ""), "Recycled");
    EXPECT_EQ(shortKey.stringFor("MediaTypeTabbed", ""), "True");
}

TEST(PrintOptionConverterKeywords, PaperTypeJoinDependsOnTheWeightValue) {
    const PlistDictionary parts{{"PaperType", "Plain"},         {"MediaTypeTabbed", "False"},
                                {"MediaTypeCoatingMaterial", "Uncoated"}, {"MediaTypePreprinted", "False"},
                                {"MediaTypeDrilled", "False"},  {"PaperTypeCustomNumber", "0"}};
    auto withoutWeight = internal(parts);
    EXPECT_EQ(withoutWeight, withSinglePageImposition({{kPaperTypeAll, "Plain_False_Uncoated_False_False_0"}}));

    PlistDictionary weighed = parts;
    weighed.set("MediaTypeWeightValue", "120");
    auto withWeight = internal(weighed);
    EXPECT_EQ(withWeight.stringFor("PaperType_MediaTypeTabbed", ""), "Plain_False");
    EXPECT_FALSE(withWeight.contains(kPaperTypeAll));
    EXPECT_EQ(withWeight.stringFor("MediaTypeCoatingMaterial", ""), "Uncoated");
    EXPECT_EQ(withWeight.stringFor("MediaTypeWeightValue", ""), "120");
}

TEST(PrintOptionConverterKeywords, WeightValueExistAnswersTrueWhenTheKeyIsAbsent) {
    EXPECT_TRUE(Converter::mediaTypeWeightValueExist({}));
    EXPECT_FALSE(Converter::mediaTypeWeightValueExist({{"MediaTypeWeightValue", ""}}));
}

TEST(PrintOptionConverterKeywords, BypassPaperTypeJoinsWhateverTheWeightValue) {
    auto printOption = internal({{"MediaTypeWeightValue", "90"},     {"PaperTypeBypass", "Plain"},
                                 {"MediaTypeTabbedBypass", "False"}, {"MediaTypeCoatingMaterialBypass", "Uncoated"},
                                 {"MediaTypePreprintedBypass", "False"}, {"MediaTypeDrilledBypass", "False"},
                                 {"PaperTypeCustomNumberBypass", "0"}});
    EXPECT_EQ(printOption, withSinglePageImposition({{"MediaTypeWeightValue", "90"},
                                                     {kPaperTypeBypassAll, "Plain_False_Uncoated_False_False_0"}}));
}

TEST(PrintOptionConverterKeywords, SpecialTonerColourKeysSplitAndJoin) {
    auto printOption = canonical({{"SpTonerSpecifyColorFront_SpTonerColorFront", "Specified_Clear"},
                                  {"SpTonerSpecifyColorBack_SpTonerColorBack", "Auto_White"}});
    EXPECT_EQ(printOption.stringFor("SpTonerSpecifyColorFront", ""), "Specified");
    EXPECT_EQ(printOption.stringFor("SpTonerColorFront", ""), "Clear");
    EXPECT_EQ(printOption.stringFor("SpTonerSpecifyColorBack", ""), "Auto");
    EXPECT_EQ(printOption.stringFor("SpTonerColorBack", ""), "White");
    auto restored = internal(printOption);
    EXPECT_EQ(restored.stringFor("SpTonerSpecifyColorFront_SpTonerColorFront", ""), "Specified_Clear");
    EXPECT_EQ(restored.stringFor("SpTonerSpecifyColorBack_SpTonerColorBack", ""), "Auto_White");
    EXPECT_FALSE(restored.contains("SpTonerColorFront"));
}

TEST(PrintOptionConverterKeywords, LoginUserTypeFillsTheUserIdFromTheAccount) {
    const passwd* account = getpwuid(getuid());
    ASSERT_NE(account, nullptr);
    auto login = canonical({{"AuthJobUserIdType", "Login"}, {"AuthJobUserId", "typed"}});
    EXPECT_EQ(login.stringFor("AuthJobUserId", ""), account->pw_name);
    EXPECT_FALSE(login.contains("AuthJobUserIdType"));

    auto typed = canonical({{"AuthJobUserIdType", "Input"}, {"AuthJobUserId", "typed"}});
    EXPECT_EQ(typed.stringFor("AuthJobUserId", ""), "typed");
    EXPECT_FALSE(typed.contains("AuthJobUserIdType"));

    auto restored = internal(login);
    EXPECT_EQ(restored.stringFor("AuthJobUserId", ""), account->pw_name);
    EXPECT_FALSE(restored.contains("AuthJobUserIdType"));
}
