#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "PrintOptionTestSupport.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
using Converter = PrintOptionConverter;

namespace {

constexpr const char* kPaperTypeAll =
    "PaperType_MediaTypeTabbed_MediaTypeCoatingMaterial_MediaTypePreprinted_MediaTypeDrilled_PaperTypeCustomNumber";
constexpr const char* kPaperTypeBypassAll =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

}  // namespace

TEST(PrintOptionConverterKeywords, SplitJoinAndSwapChangeNothingWhenAPartIsMissing) {
    PlistDictionary split{{"A_B_C", "x_y_z"}, {"B", "old"}};
    Converter::splitKeyword(split, "A_B_C");
    EXPECT_EQ(split, (PlistDictionary{{"B", "y"}, {"A", "x"}, {"C", "z"}}));
    for (const PlistDictionary& untouched :
         {PlistDictionary{{"A_B", "x_y_z"}}, PlistDictionary{{"A_B", ""}}, PlistDictionary{{"A", "x"}}}) {
        PlistDictionary printOption = untouched;
        Converter::splitKeyword(printOption, "A_B");
        EXPECT_EQ(printOption, untouched);
    }
    // Booleans and numbers join by their truth.
    PlistDictionary joined{{"A", "x"}, {"B", true}, {"C", 0}, {"D", "keep"}};
    Converter::joinKeyword(joined, "A_B_C");
    EXPECT_EQ(joined, (PlistDictionary{{"D", "keep"}, {"A_B_C", "x_True_False"}}));
    for (const PlistDictionary& untouched :
         {PlistDictionary{{"A", "x"}, {"C", "z"}}, PlistDictionary{{"A", "x"}, {"B", ""}, {"C", "z"}}}) {
        PlistDictionary printOption = untouched;
        Converter::joinKeyword(printOption, "A_B_C");
        EXPECT_EQ(printOption, untouched);
    }
    PlistDictionary both{{"A", "1"}, {"B", "2"}};
    Converter::swapKeywordValue(both, "A", "B");
    EXPECT_EQ(both, (PlistDictionary{{"A", "2"}, {"B", "1"}}));
    PlistDictionary one{{"A", "1"}};
    Converter::swapKeywordValue(one, "A", "B");
    EXPECT_EQ(one, (PlistDictionary{{"A", "1"}}));
}

TEST(PrintOptionConverterKeywords, PunchSplitsIntoPositionAndHolesAndJoinsBack) {
    const std::tuple<const char*, const char*, const char*> split[] = {
        {"None", "None", "None"},           {"LeftHoles2", "Left", "Holes2"},       {"RightHolesMulti", "Right", "HolesMulti"},
        {"TopHoles3", "Top", "Holes3"},     {"BottomHoles4", "Bottom", "Holes4"},   {"MixSizeHoles4", "MixSize", "Holes4"},
        {"MixSizeHolesMulti", "None", "None"}, {"leftholes2", "None", "None"}};
    for (const auto& [joined, punch, holes] : split)
        EXPECT_EQ(valuesOf(canonical({{"Punch_PunchHoles", joined}}), {"Punch", "PunchHoles", "Punch_PunchHoles"}),
                  (Strings{punch, holes, "-"}))
            << joined;
    const auto joinedPunchOf = [](const char* punch, const char* holes) {
        return valuesOf(internal({{"Punch", punch}, {"PunchHoles", holes}}), {"Punch_PunchHoles", "Punch", "PunchHoles"});
    };
    for (const char* position : {"Left", "Right", "Top", "Bottom"})
        for (const char* holes : {"Holes2", "Holes3", "Holes4", "HolesMulti"})
            EXPECT_EQ(joinedPunchOf(position, holes), (Strings{std::string(position) + holes, "-", "-"}));
    EXPECT_EQ(joinedPunchOf("MixSize", "Holes3"), (Strings{"MixSizeHoles3", "-", "-"}));
    for (const auto& [punch, holes] : {std::pair{"MixSize", "HolesMulti"}, std::pair{"None", "Holes2"},
                                       std::pair{"Middle", "Holes2"}, std::pair{"Left", "Holes5"}})
        EXPECT_EQ(joinedPunchOf(punch, holes), (Strings{"None", "-", "-"})) << punch << holes;
    // Without both keys nothing is joined.
    EXPECT_EQ(internal({{"Punch", "Left"}}), withSinglePageImposition({{"Punch", "Left"}}));
}

TEST(PrintOptionConverterKeywords, OutputOrderSplitsIntoPageOrderAndOutputModeAndJoinsBack) {
    const std::tuple<const char*, const char*, const char*> split[] = {
        {"FaceDown", "Normal", "FaceDown"},        {"FaceUp", "Normal", "FaceUp"},   {"FaceUpReverse", "Reverse", "FaceUp"},
        {"FaceDownReverse", "Reverse", "FaceDown"}, {"Sideways", "Normal", "FaceUp"}};
    for (const auto& [joined, pageOrder, outputMode] : split)
        EXPECT_EQ(valuesOf(canonical({{"PageOrder_new", joined}}), {"PageOrder", "OutputMode", "PageOrder_new"}),
                  (Strings{pageOrder, outputMode, "-"}))
            << joined;
    // Unknown pairs read back as face down.
    const std::tuple<const char*, const char*, const char*> joined[] = {
        {"Normal", "FaceDown", "FaceDown"},       {"Normal", "FaceUp", "FaceUp"}, {"Reverse", "FaceDown", "FaceDownReverse"},
        {"Reverse", "FaceUp", "FaceUpReverse"}, {"Reverse", "Sideways", "FaceDown"}};
    for (const auto& [pageOrder, outputMode, order] : joined)
        EXPECT_EQ(internal({{"PageOrder", pageOrder}, {"OutputMode", outputMode}}),
                  withSinglePageImposition({{"PageOrder_new", order}}))
            << pageOrder << outputMode;
    EXPECT_EQ(internal({{"OutputMode", "FaceUp"}}), withSinglePageImposition({{"OutputMode", "FaceUp"}}));
}

TEST(PrintOptionConverterKeywords, StackerTypeFollowsEachNonEmptyTray) {
    auto printOption = canonical({{"QVInputSlot", "TrayStk"},
                                  {"BlankPapersFrontTray", "Tray2"},
                                  {"BlankPapersBackTray", "TrayStk"},
                                  {"SeparatorsTray", ""},
                                  {"Imposition1stTray", "TrayMSI"},
                                  {"CoverPageTray", "TrayStk"}});
    EXPECT_EQ(valuesOf(printOption, {"StkType", "BlankPapersFrontStkType", "BlankPapersBackStkType", "SeparatorsStkType",
                                     "Imposition1stStkType", "CoverPageStkType"}),
              (Strings{"Name", "Property", "Name", "-", "Property", "Name"}));
    // Reading back leaves the stacker types where they are.
    EXPECT_EQ(internal(printOption).stringFor("StkType", ""), "Name");
}

TEST(PrintOptionConverterKeywords, PaperTypeKeysSplitForThePpd) {
    auto printOption = canonical({{kPaperTypeAll, "Plain_False_Uncoated_False_False_0"},
                                  {kPaperTypeBypassAll, "Coated1_True_Gloss_False_True_3"}});
    EXPECT_FALSE(printOption.contains(kPaperTypeAll));
    EXPECT_FALSE(printOption.contains(kPaperTypeBypassAll));
    EXPECT_EQ(valuesOf(printOption, {"PaperType", "MediaTypeCoatingMaterial", "PaperTypeCustomNumber", "PaperTypeBypass",
                                     "MediaTypeDrilledBypass", "PaperTypeCustomNumberBypass"}),
              (Strings{"Plain", "Uncoated", "0", "Coated1", "True", "3"}));
    EXPECT_EQ(valuesOf(canonical({{"PaperType_MediaTypeTabbed", "Recycled_True"}}), {"PaperType", "MediaTypeTabbed"}),
              (Strings{"Recycled", "True"}));
}

// A weight value, even an empty one, leaves only paper type and tabs joined; the bypass
// keys join whatever the weight value.
TEST(PrintOptionConverterKeywords, PaperTypeJoinDependsOnTheWeightValue) {
    const PlistDictionary parts{{"PaperType", "Plain"},         {"MediaTypeTabbed", "False"},
                                {"MediaTypeCoatingMaterial", "Uncoated"}, {"MediaTypePreprinted", "False"},
                                {"MediaTypeDrilled", "False"},  {"PaperTypeCustomNumber", "0"}};
    EXPECT_EQ(internal(parts), withSinglePageImposition({{kPaperTypeAll, "Plain_False_Uncoated_False_False_0"}}));
    for (const char* weight : {"120", ""}) {
        PlistDictionary weighed = parts;
        weighed.set("MediaTypeWeightValue", weight);
        EXPECT_EQ(valuesOf(internal(weighed), {"PaperType_MediaTypeTabbed", kPaperTypeAll, "MediaTypeCoatingMaterial",
                                               "MediaTypeWeightValue"}),
                  (Strings{"Plain_False", "-", "Uncoated", weight}));
    }
    auto bypass = internal({{"MediaTypeWeightValue", "90"},     {"PaperTypeBypass", "Plain"},
                            {"MediaTypeTabbedBypass", "False"}, {"MediaTypeCoatingMaterialBypass", "Uncoated"},
                            {"MediaTypePreprintedBypass", "False"}, {"MediaTypeDrilledBypass", "False"},
                            {"PaperTypeCustomNumberBypass", "0"}});
    EXPECT_EQ(bypass, withSinglePageImposition({{"MediaTypeWeightValue", "90"},
                                                {kPaperTypeBypassAll, "Plain_False_Uncoated_False_False_0"}}));
}

TEST(PrintOptionConverterKeywords, SpecialTonerColourKeysSplitAndJoin) {
    const std::initializer_list<const char*> parts = {"SpTonerSpecifyColorFront", "SpTonerColorFront",
                                                      "SpTonerSpecifyColorBack", "SpTonerColorBack"};
    auto printOption = canonical({{"SpTonerSpecifyColorFront_SpTonerColorFront", "Specified_Clear"},
                                  {"SpTonerSpecifyColorBack_SpTonerColorBack", "Auto_White"}});
    EXPECT_EQ(valuesOf(printOption, parts), (Strings{"Specified", "Clear", "Auto", "White"}));
    auto restored = internal(printOption);
    EXPECT_EQ(valuesOf(restored, {"SpTonerSpecifyColorFront_SpTonerColorFront", "SpTonerSpecifyColorBack_SpTonerColorBack"}),
              (Strings{"Specified_Clear", "Auto_White"}));
    EXPECT_EQ(valuesOf(restored, parts), Strings(4, "-"));
}

TEST(PrintOptionConverterKeywords, LoginUserTypeFillsTheUserIdFromTheAccount) {
    const passwd* account = getpwuid(getuid());
    ASSERT_NE(account, nullptr);
    auto login = canonical({{"AuthJobUserIdType", "Login"}, {"AuthJobUserId", "typed"}});
    EXPECT_EQ(valuesOf(login, {"AuthJobUserId", "AuthJobUserIdType"}), (Strings{account->pw_name, "-"}));
    auto typed = canonical({{"AuthJobUserIdType", "Input"}, {"AuthJobUserId", "typed"}});
    EXPECT_EQ(valuesOf(typed, {"AuthJobUserId", "AuthJobUserIdType"}), (Strings{"typed", "-"}));
    EXPECT_EQ(valuesOf(internal(login), {"AuthJobUserId", "AuthJobUserIdType"}), (Strings{account->pw_name, "-"}));
}
