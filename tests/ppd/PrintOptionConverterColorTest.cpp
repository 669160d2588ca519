#include <gtest/gtest.h>

#include "PrintOptionTestSupport.h"
#include "core/PreferredLanguages.h"
#include "ppd/PrintOptionConverter.h"

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

}  // namespace

TEST(PrintOptionConverterColor, OverlayObjectsBecomeBitmasksPerSide) {
    PlistDictionary printOption{{"SpTonerOverlayObjectFrontPhoto", "True"},
                                {"SpTonerOverlayObjectFrontText", "False"},
                                {"SpTonerOverlayObjectFrontDrawing", "True"},
                                {"SpTonerOverlayObjectBackText", "True"}};
    Converter::convertToCanonicalSpecifiedObject(printOption);
    EXPECT_EQ(printOption.stringFor("SpTonerOverlayObjectFront", ""), "60");
    EXPECT_EQ(printOption.stringFor("SpTonerOverlayObjectBack", ""), "3");
    EXPECT_EQ(printOption.stringFor("SpTonerOverlayObjectFrontPhoto", ""), "True");
    EXPECT_EQ(printOption.size(), 6u);

    PlistDictionary none;
    Converter::convertToCanonicalSpecifiedObject(none);
    EXPECT_EQ(none, (PlistDictionary{{"SpTonerOverlayObjectFront", "0"}, {"SpTonerOverlayObjectBack", "0"}}));
}

TEST(PrintOptionConverterColor, BitmasksBecomeOverlayObjectsOnlyWhenBothSidesAreSet) {
    PlistDictionary printOption{{"SpTonerOverlayObjectFront", "51"}, {"SpTonerOverlayObjectBack", "16"}};
    Converter::convertToInternalSpecifiedObject(printOption);
    EXPECT_EQ(printOption, (PlistDictionary{{"SpTonerOverlayObjectFront", "51"},
                                            {"SpTonerOverlayObjectBack", "16"},
                                            {"SpTonerOverlayObjectFrontPhoto", "True"},
                                            {"SpTonerOverlayObjectFrontText", "True"},
                                            {"SpTonerOverlayObjectFrontDrawing", "False"},
                                            {"SpTonerOverlayObjectBackPhoto", "False"},
                                            {"SpTonerOverlayObjectBackText", "False"},
                                            {"SpTonerOverlayObjectBackDrawing", "False"}}));

    const PlistDictionary oneSide{{"SpTonerOverlayObjectFront", "63"}, {"SpTonerOverlayObjectBack", ""}};
    PlistDictionary unchanged = oneSide;
    Converter::convertToInternalSpecifiedObject(unchanged);
    EXPECT_EQ(unchanged, oneSide);
}

TEST(PrintOptionConverterColor, GraphicsTreatmentSplitsIntoBaseAndMode) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"JobImage", "Job", "Image"}, {"JobText", "Job", "Text"}, {"System", "System", "Image"},
        {"Unknown", "System", "Image"}};
    for (const auto& [treatment, base, mode] : rows) {
        PlistDictionary printOption{{"GraphicsTreatmentEx", treatment}};
        Converter::convertToCanonicalGraphicsTreatmentEx(printOption);
        EXPECT_EQ(printOption, (PlistDictionary{{"GraphicsTreatmentEx", treatment},
                                                {"GraphicsTreatmentBase", base},
                                                {"GraphicsTreatmentMode", mode}}));
    }
    PlistDictionary absent;
    Converter::convertToCanonicalGraphicsTreatmentEx(absent);
    EXPECT_TRUE(absent.empty());
}

TEST(PrintOptionConverterColor, BaseAndModeJoinIntoGraphicsTreatment) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"System", "Text", "System"}, {"Job", "Text", "JobText"}, {"Job", "Image", "JobImage"},
        {"Other", "Other", "JobImage"}};
    for (const auto& [base, mode, treatment] : rows) {
        PlistDictionary printOption{{"GraphicsTreatmentBase", base}, {"GraphicsTreatmentMode", mode}};
        Converter::convertToInternalGraphicsTreatmentEx(printOption);
        EXPECT_EQ(printOption.stringFor("GraphicsTreatmentEx", ""), treatment) << base << mode;
        EXPECT_EQ(printOption.size(), 3u);
    }
    PlistDictionary baseOnly{{"GraphicsTreatmentBase", "Job"}};
    Converter::convertToInternalGraphicsTreatmentEx(baseOnly);
    EXPECT_FALSE(baseOnly.contains("GraphicsTreatmentEx"));
}

TEST(PrintOptionConverterColor, StandardAndOtherSpotProfilesBothUseThePrintersStandard) {
    for (const char* profile : {"Standard", "UseOther"})
        EXPECT_EQ(canonical({{"SpotColorCorrectionProfile", profile}}).stringFor("SpotColorCorrectionProfileType", ""),
                  "PrinterStandard");
    auto custom = canonical({{"SpotColorCorrectionProfile", "Custom"}, {"SpotColorCorrectionProfileType", "User"}});
    EXPECT_EQ(custom.stringFor("SpotColorCorrectionProfileType", ""), "User");
}

TEST(PrintOptionConverterColor, RenderingProfileChoosesTheProfileType) {
    auto standard = canonical({{"RenderingProfile", "True"}, {"RenderingProfileType", "ICC"}});
    EXPECT_EQ(standard.stringFor("RenderingProfileType", ""), "PrinterStandard");
    EXPECT_FALSE(standard.contains("RenderingProfile"));

    auto unnamed = canonical({{"RenderingProfile", "False"}, {"RenderingProfileType", "PrinterStandard"},
                              {"RenderingProfileName", ""}});
    EXPECT_EQ(unnamed.stringFor("RenderingProfileType", ""), "ICC");
    auto absentName = canonical({{"RenderingProfile", "False"}, {"RenderingProfileType", "PrinterStandard"}});
    EXPECT_EQ(absentName.stringFor("RenderingProfileType", ""), "ICC");

    auto named = canonical({{"RenderingProfile", "False"}, {"RenderingProfileType", "PrinterStandard"},
                            {"RenderingProfileName", "Coated.icc"}});
    EXPECT_EQ(named.stringFor("RenderingProfileType", ""), "PrinterStandard");
    EXPECT_FALSE(named.contains("RenderingProfile"));

    auto measured = canonical({{"RenderingProfile", "False"}, {"RenderingProfileType", "Measurement"}});
    EXPECT_EQ(measured.stringFor("RenderingProfileType", ""), "Measurement");

    auto noSwitch = canonical({{"RenderingProfileType", "PrinterStandard"}});
    EXPECT_EQ(noSwitch.stringFor("RenderingProfileType", ""), "PrinterStandard");
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

TEST(PrintOptionConverterColor, DecimalCommaLanguagesWriteSpotNamesWithPoints) {
    for (const char* language : {"fr", "de-DE", "es-MX", "it"}) {
        PreferredLanguage chosen(language);
        auto printOption = canonical(twoColorNames("1,5;2,5"));
        EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationSpotSpotName", ""), "1.5,2.5") << language;
        EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationCSpotName", ""), "0.5");
        EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationMSpotName", ""), "1.25");
        EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationYSpotName", ""), "Gold;2.5");
        EXPECT_FALSE(printOption.contains("TwoColorPressSimulationKSpotName"));
    }
}

TEST(PrintOptionConverterColor, DecimalCommaLanguagesReadSpotNamesBackWithCommas) {
    PreferredLanguage french("fr");
    auto printOption = internal(twoColorNames("1.5,2.5"));
    EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationSpotSpotName", ""), "1,5;2,5");
    EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationCSpotName", ""), "0,5");
    EXPECT_EQ(printOption.stringFor("TwoColorPressSimulationMSpotName", ""), "1,25");
    EXPECT_FALSE(printOption.contains("TwoColorPressSimulationKSpotName"));

    auto wholeNumbers = internal(twoColorNames("15,25"));
    EXPECT_EQ(wholeNumbers.stringFor("TwoColorPressSimulationSpotSpotName", ""), "15,25");
    EXPECT_EQ(wholeNumbers.stringFor("TwoColorPressSimulationMSpotName", ""), "1,25");
}

TEST(PrintOptionConverterColor, OtherLanguagesAndMissingSpotSpotNameLeaveNamesAlone) {
    {
        PreferredLanguage japanese("ja");
        EXPECT_EQ(canonical(twoColorNames("1,5;2,5")).stringFor("TwoColorPressSimulationSpotSpotName", ""),
                  "1,5;2,5");
        EXPECT_EQ(internal(twoColorNames("1.5,2.5")).stringFor("TwoColorPressSimulationCSpotName", ""), "0,5");
    }
    PreferredLanguage french("fr-CA");
    auto withoutSpotSpot = canonical({{"TwoColorPressSimulationCSpotName", "0,5"}});
    EXPECT_EQ(withoutSpotSpot.stringFor("TwoColorPressSimulationCSpotName", ""), "0,5");
}
