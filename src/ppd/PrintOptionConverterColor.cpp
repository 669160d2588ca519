// Colour settings: special-toner overlay objects, graphics treatment, colour profiles
// and the spot colour names of the two-colour press simulation.

#include <array>

#include "core/PreferredLanguages.h"
#include "ppd/PrintOptionConverter.h"
#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace ConverterSupport;

namespace {

struct OverlayObject {
    std::string_view name;
    int mask;
};

constexpr std::array<OverlayObject, 3> kOverlayObjects{{{"Photo", 48}, {"Text", 3}, {"Drawing", 12}}};
constexpr std::array<std::string_view, 2> kSides{"Front", "Back"};

constexpr std::string_view kSpotSpotName = "TwoColorPressSimulationSpotSpotName";
constexpr std::array<std::string_view, 4> kProcessColorSpotNames{
    "TwoColorPressSimulationCSpotName", "TwoColorPressSimulationMSpotName", "TwoColorPressSimulationYSpotName",
    "TwoColorPressSimulationKSpotName"};

std::string overlayKey(std::string_view side) { return "SpTonerOverlayObject" + std::string(side); }

// Users of these languages write "1,5" for one and a half, and the panes let them; the
// press wants the point, and the list separator of the spot-spot name becomes ",".
bool writesDecimalComma() {
    const std::string language = PreferredLanguages::first();
    for (std::string_view code : {"es", "de", "it", "fr"})
        if (language.find(code) != std::string::npos) return true;
    return false;
}

void rewriteString(PlistDictionary& printOption, std::string_view key,
                   std::initializer_list<std::pair<std::string_view, std::string_view>> replacements) {
    PlistValue* value = printOption.find(key);
    if (!value || !value->string()) return;
    std::string text = *value->string();
    for (const auto& [from, to] : replacements) text = replacingAll(std::move(text), from, to);
    *value = std::move(text);
}

}  // namespace

void PrintOptionConverter::convertToCanonicalSpecifiedObject(PlistDictionary& printOption) {
    for (std::string_view side : kSides) {
        int mask = 0;
        for (const OverlayObject& object : kOverlayObjects)
            if (holds(printOption, overlayKey(side) + std::string(object.name), "True")) mask |= object.mask;
        printOption.set(overlayKey(side), std::to_string(mask));
    }
}

void PrintOptionConverter::convertToInternalSpecifiedObject(PlistDictionary& printOption) {
    auto front = nonEmptyString(printOption, overlayKey("Front"));
    auto back = nonEmptyString(printOption, overlayKey("Back"));
    if (!front || !back) return;
    for (std::string_view side : kSides) {
        const int mask = integerOf(side == "Front" ? *front : *back);
        for (const OverlayObject& object : kOverlayObjects)
            printOption.set(overlayKey(side) + std::string(object.name),
                            (mask & object.mask) == object.mask ? "True" : "False");
    }
}

void PrintOptionConverter::convertToCanonicalGraphicsTreatmentEx(PlistDictionary& printOption) {
    if (!printOption.contains("GraphicsTreatmentEx")) return;
    std::string_view base = "System";
    std::string_view mode = "Image";
    if (holds(printOption, "GraphicsTreatmentEx", "JobImage")) {
        base = "Job";
    } else if (holds(printOption, "GraphicsTreatmentEx", "JobText")) {
        base = "Job";
        mode = "Text";
    }
    printOption.set("GraphicsTreatmentBase", base);
    printOption.set("GraphicsTreatmentMode", mode);
}

void PrintOptionConverter::convertToInternalGraphicsTreatmentEx(PlistDictionary& printOption) {
    if (!printOption.contains("GraphicsTreatmentBase") || !printOption.contains("GraphicsTreatmentMode")) return;
    std::string_view treatment = "JobImage";
    if (holds(printOption, "GraphicsTreatmentBase", "System")) {
        treatment = "System";
    } else if (holds(printOption, "GraphicsTreatmentMode", "Text")) {
        treatment = "JobText";
    }
    printOption.set("GraphicsTreatmentEx", treatment);
}

namespace ConverterSteps {

// "UseOther" deliberately gives the printer's standard profile too: the other profile is
// chosen on the press, not in the job.
void markSpotColorCorrectionProfileType(PlistDictionary& printOption) {
    if (holds(printOption, "SpotColorCorrectionProfile", "Standard") ||
        holds(printOption, "SpotColorCorrectionProfile", "UseOther"))
        printOption.set("SpotColorCorrectionProfileType", "PrinterStandard");
}

void markRenderingProfileType(PlistDictionary& printOption) {
    if (!printOption.contains("RenderingProfile")) return;
    const PlistValue* name = printOption.find("RenderingProfileName");
    const bool noName = !name || (name->string() && name->string()->empty());
    if (holds(printOption, "RenderingProfile", "True")) {
        printOption.set("RenderingProfileType", "PrinterStandard");
    } else if (noName && holds(printOption, "RenderingProfileType", "PrinterStandard")) {
        printOption.set("RenderingProfileType", "ICC");
    }
    printOption.erase("RenderingProfile");
}

void markRenderingProfile(PlistDictionary& printOption) {
    if (!printOption.contains("RenderingProfileType")) return;
    const bool ownProfile =
        holds(printOption, "RenderingProfileType", "ICC") || holds(printOption, "RenderingProfileType", "Measurement");
    printOption.set("RenderingProfile", ownProfile ? "False" : "True");
}

void writeTwoColorPressNamesForPpd(PlistDictionary& printOption) {
    if (!printOption.contains(kSpotSpotName) || !writesDecimalComma()) return;
    rewriteString(printOption, kSpotSpotName, {{",", "."}, {";", ","}});
    for (std::string_view key : kProcessColorSpotNames) rewriteString(printOption, key, {{",", "."}});
}

// A spot-spot name without a point was never rewritten for the press ("15,25" is two
// whole numbers) and is left alone.
void readTwoColorPressNamesFromPpd(PlistDictionary& printOption) {
    if (!printOption.contains(kSpotSpotName) || !writesDecimalComma()) return;
    const auto spotSpot = printOption.stringFor(kSpotSpotName);
    if (spotSpot && spotSpot->find('.') != std::string::npos)
        rewriteString(printOption, kSpotSpotName, {{",", ";"}, {".", ","}});
    for (std::string_view key : kProcessColorSpotNames) rewriteString(printOption, key, {{".", ","}});
}

}  // namespace ConverterSteps
}  // namespace ComQuorvantVelmar_Plugin
