#include <gtest/gtest.h>

#include "PrintOptionTestSupport.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;
using Converter = PrintOptionConverter;

namespace {

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
