#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "PrintOptionTestSupport.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
using Converter = PrintOptionConverter;

namespace {

constexpr const char* kPaperTypeAll =
    "PaperType_MediaTypeTabbed_MediaTypeCoatingMaterial_MediaTypePreprinted_MediaTypeDrilled_PaperTypeCustomNumber";
constexpr const char* kPaperTypeBypassAll =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

// Sets the first preferred language for one test.
class PreferredLanguage {
public:
    explicit PreferredLanguage(const std::string& language) { PreferredLanguages::setFirst(language); }
    ~PreferredLanguage() { PreferredLanguages::setFirst(""); }
};

PlistDictionary twoColorNames(const char* spotSpot) {
    return {{"TwoColorPressSimulationSpotSpotName", spotSpot},
            {"TwoColorPressSimulationCSpotName", "0,5"},
            {"TwoColorPressSimulationMSpotName", "1.25"},
            {"TwoColorPressSimulationYSpotName", "Gold;2,5"}};
}

const std::initializer_list<const char*> kSpotNames = {
    "TwoColorPressSimulationSpotSpotName", "TwoColorPressSimulationCSpotName", "TwoColorPressSimulationMSpotName",
    "TwoColorPressSimulationYSpotName", "TwoColorPressSimulationKSpotName"};

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

// Joining them back is checked by the round trip.
TEST(PrintOptionConverterKeywords, SpecialTonerColourKeysSplit) {
    const std::initializer_list<const char*> parts = {"SpTonerSpecifyColorFront", "SpTonerColorFront",
                                                      "SpTonerSpecifyColorBack", "SpTonerColorBack"};
    auto printOption = canonical({{"SpTonerSpecifyColorFront_SpTonerColorFront", "Specified_Clear"},
                                  {"SpTonerSpecifyColorBack_SpTonerColorBack", "Auto_White"}});
    EXPECT_EQ(valuesOf(printOption, parts), (Strings{"Specified", "Clear", "Auto", "White"}));
}

TEST(PrintOptionConverterKeywords, LoginUserTypeFillsTheUserIdFromTheAccount) {
    const passwd* account = getpwuid(getuid());
    ASSERT_NE(account, nullptr);
    auto login = canonical({{"AuthJobUserIdType", "Login"}, {"AuthJobUserId", "typed"}});
    EXPECT_EQ(valuesOf(login, {"AuthJobUserId", "AuthJobUserIdType"}), (Strings{account->pw_name, "-"}));
    auto typed = canonical({{"AuthJobUserIdType", "Input"}, {"AuthJobUserId", "typed"}});
    EXPECT_EQ(valuesOf(typed, {"AuthJobUserId", "AuthJobUserIdType"}), (Strings{"typed", "-"}));
}

// Photo, text and drawing are bits 4+5, 0+1 and 2+3 of each side's mask; the masks are
// read back only when both sides are set.
TEST(PrintOptionConverterColor, OverlayObjectsAndBitmasksConvertBothWays) {
    PlistDictionary printOption{{"SpTonerOverlayObjectFrontPhoto", "True"},
                                {"SpTonerOverlayObjectFrontText", "False"},
                                {"SpTonerOverlayObjectFrontDrawing", "True"},
                                {"SpTonerOverlayObjectBackText", "True"}};
    Converter::convertToCanonicalSpecifiedObject(printOption);
    EXPECT_EQ(valuesOf(printOption, {"SpTonerOverlayObjectFront", "SpTonerOverlayObjectBack"}), (Strings{"60", "3"}));
    EXPECT_EQ(printOption.size(), 6u);
    PlistDictionary none;
    Converter::convertToCanonicalSpecifiedObject(none);
    EXPECT_EQ(none, (PlistDictionary{{"SpTonerOverlayObjectFront", "0"}, {"SpTonerOverlayObjectBack", "0"}}));

    PlistDictionary masks{{"SpTonerOverlayObjectFront", "51"}, {"SpTonerOverlayObjectBack", "16"}};
    Converter::convertToInternalSpecifiedObject(masks);
    EXPECT_EQ(valuesOf(masks, {"SpTonerOverlayObjectFrontPhoto", "SpTonerOverlayObjectFrontText",
                               "SpTonerOverlayObjectFrontDrawing", "SpTonerOverlayObjectBackPhoto",
                               "SpTonerOverlayObjectBackText", "SpTonerOverlayObjectBackDrawing"}),
              (Strings{"True", "True", "False", "False", "False", "False"}));
    const PlistDictionary oneSide{{"SpTonerOverlayObjectFront", "63"}, {"SpTonerOverlayObjectBack", ""}};
    PlistDictionary unchanged = oneSide;
    Converter::convertToInternalSpecifiedObject(unchanged);
    EXPECT_EQ(unchanged, oneSide);
}

TEST(PrintOptionConverterColor, GraphicsTreatmentSplitsIntoBaseAndModeAndJoinsBack) {
    const std::tuple<const char*, const char*, const char*> split[] = {
        {"JobImage", "Job", "Image"}, {"JobText", "Job", "Text"}, {"System", "System", "Image"}, {"Unknown", "System", "Image"}};
    for (const auto& [treatment, base, mode] : split) {
        PlistDictionary printOption{{"GraphicsTreatmentEx", treatment}};
        Converter::convertToCanonicalGraphicsTreatmentEx(printOption);
        EXPECT_EQ(printOption, (PlistDictionary{{"GraphicsTreatmentEx", treatment}, {"GraphicsTreatmentBase", base},
                                                {"GraphicsTreatmentMode", mode}}));
    }
    const std::tuple<const char*, const char*, const char*> joined[] = {
        {"System", "Text", "System"}, {"Job", "Text", "JobText"}, {"Job", "Image", "JobImage"}, {"Other", "Other", "JobImage"}};
    for (const auto& [base, mode, treatment] : joined) {
        PlistDictionary printOption{{"GraphicsTreatmentBase", base}, {"GraphicsTreatmentMode", mode}};
        Converter::convertToInternalGraphicsTreatmentEx(printOption);
        EXPECT_EQ(printOption.stringFor("GraphicsTreatmentEx", ""), treatment) << base << mode;
    }
    PlistDictionary absent;
    Converter::convertToCanonicalGraphicsTreatmentEx(absent);
    EXPECT_TRUE(absent.empty());
    PlistDictionary baseOnly{{"GraphicsTreatmentBase", "Job"}};
    Converter::convertToInternalGraphicsTreatmentEx(baseOnly);
    EXPECT_FALSE(baseOnly.contains("GraphicsTreatmentEx"));
}

TEST(PrintOptionConverterColor, ProfileSwitchesChooseTheProfileType) {
    for (const char* profile : {"Standard", "UseOther"})
        EXPECT_EQ(canonical({{"SpotColorCorrectionProfile", profile}}).stringFor("SpotColorCorrectionProfileType", ""),
                  "PrinterStandard");
    EXPECT_EQ(canonical({{"SpotColorCorrectionProfile", "Custom"}, {"SpotColorCorrectionProfileType", "User"}})
                  .stringFor("SpotColorCorrectionProfileType", ""),
              "User");
    // Rendering switch, type, name -> type sent to the press.
    const std::tuple<std::optional<std::string>, const char*, std::optional<std::string>, const char*> rendering[] = {
        {"True", "ICC", std::nullopt, "PrinterStandard"},
        {"False", "PrinterStandard", "", "ICC"},
        {"False", "PrinterStandard", std::nullopt, "ICC"},
        {"False", "PrinterStandard", "Coated.icc", "PrinterStandard"},
        {"False", "Measurement", std::nullopt, "Measurement"},
        {std::nullopt, "PrinterStandard", std::nullopt, "PrinterStandard"}};
    for (const auto& [renderingSwitch, type, name, sent] : rendering) {
        PlistDictionary printOption{{"RenderingProfileType", type}};
        if (renderingSwitch) printOption.set("RenderingProfile", *renderingSwitch);
        if (name) printOption.set("RenderingProfileName", *name);
        const PlistDictionary press = canonical(printOption);
        EXPECT_EQ(press.stringFor("RenderingProfileType", ""), sent) << renderingSwitch.value_or("-") << type;
        EXPECT_FALSE(press.contains("RenderingProfile"));
    }
}

TEST(PrintOptionConverterColor, ProfileTypeReadsBackAsTheRenderingSwitch) {
    const std::pair<const char*, const char*> rows[] = {
        {"ICC", "False"}, {"Measurement", "False"}, {"PrinterStandard", "True"}, {"Other", "True"}};
    for (const auto& [type, rendering] : rows) {
        auto printOption = internal({{"RenderingProfileType", type}});
        EXPECT_EQ(printOption.stringFor("RenderingProfile", ""), rendering) << type;
        EXPECT_EQ(printOption.stringFor("RenderingProfileType", ""), type);
    }
    EXPECT_FALSE(internal({}).contains("RenderingProfile"));
}

// Languages writing a decimal comma separate the spot-spot pair with ";"; the press wants
// points and ",". Other languages, or a missing spot-spot name, leave the names alone.
TEST(PrintOptionConverterColor, DecimalCommaLanguagesWriteSpotNamesWithPointsAndReadThemBack) {
    for (const char* language : {"fr", "de-DE", "es-MX", "it"}) {
        PreferredLanguage chosen(language);
        EXPECT_EQ(valuesOf(canonical(twoColorNames("1,5;2,5")), kSpotNames),
                  (Strings{"1.5,2.5", "0.5", "1.25", "Gold;2.5", "-"}))
            << language;
    }
    PreferredLanguage french("fr");
    EXPECT_EQ(valuesOf(internal(twoColorNames("1.5,2.5")), kSpotNames), (Strings{"1,5;2,5", "0,5", "1,25", "Gold;2,5", "-"}));
    EXPECT_EQ(valuesOf(internal(twoColorNames("15,25")), {"TwoColorPressSimulationSpotSpotName"}), Strings{"15,25"});
    EXPECT_EQ(canonical({{"TwoColorPressSimulationCSpotName", "0,5"}}).stringFor("TwoColorPressSimulationCSpotName", ""),
              "0,5");
    PreferredLanguage japanese("ja");
    EXPECT_EQ(valuesOf(canonical(twoColorNames("1,5;2,5")), kSpotNames),
              (Strings{"1,5;2,5", "0,5", "1.25", "Gold;2,5", "-"}));
    EXPECT_EQ(internal(twoColorNames("1.5,2.5")).stringFor("TwoColorPressSimulationCSpotName", ""), "0,5");
}
