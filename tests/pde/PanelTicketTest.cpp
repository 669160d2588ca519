#include <gtest/gtest.h>

#include "PanelTestSupport.h"
#include "panes/PanePlugInMgr.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/LegacyTicket.h"
#include "pde/PanelButton.h"
#include "pde/PrintSettings.h"
#include "pde/PrintSettingsTicket.h"
#include "ppd/PpdFileExt.h"

using namespace PanelTest;

namespace {

using Flavour = InMemoryPdeHost::Flavour;

void setCustomEntry(InMemoryPdeHost& host, const std::string& key, const std::string& stored) {
    host.printSettings()->setValue(PrintSettingsTicket::customKey(key), stored);
}

}  // namespace

TEST(PanelSave, ValidChoicesAreMarkedInThePpdAndOtherValuesRideInTheCustomEntry) {
    PanelScope scope;
    setCustomEntry(scope.host(), "StapleMode", "LeftoverFromAnOlderDriver");
    scope.panel().willShow();
    scope.userChanges("StapleMode", "TopLeftCorner");
    scope.userChanges("MediaTypeSequence", "7");

    EXPECT_TRUE(scope.panel().saveValuesAndReturnError());
    EXPECT_EQ(scope.setting("StapleMode"), "TopLeftCorner");
    EXPECT_EQ(scope.marked("StapleMode"), "TopLeftCorner");
    EXPECT_EQ(scope.storedCustom("StapleMode"), std::nullopt);
    EXPECT_EQ(scope.storedCustom("MediaTypeSequence"), "7");
    EXPECT_EQ(scope.setting("MediaTypeSequence"), "0");
    EXPECT_EQ(scope.marked("MediaTypeSequence"), "0");
    EXPECT_EQ(scope.option("MediaTypeSequence"), "7");
}

TEST(PanelSave, ValueWithoutPpdOptionIsOnlyACustomEntry) {
    PanelScope scope;
    PlistDictionary ppdDictionary{{"QVNote", "stale"}, {"ColorMode", "Color"}};
    scope.panel()._setValueToPpdDictionary(&ppdDictionary, "QVNote", "hello");
    scope.panel()._setValueToPpdDictionary(&ppdDictionary, "ColorMode", "Grayscale");

    EXPECT_EQ(scope.storedCustom("QVNote"), "hello");
    EXPECT_EQ(ppdDictionary, (PlistDictionary{{"ColorMode", "Grayscale"}}));
    // With a dictionary of its own the panel leaves the host's PPD alone.
    EXPECT_TRUE(scope.host().ppdChanges().empty());
}

TEST(PanelSave, WritesTheFixedCustomEntriesEscaped) {
    PanelScope scope;
    scope.panel().setJobNameValues("Input", "Q3 \\(draft\\), 50%", "Q3 (draft), 50%");
    EXPECT_TRUE(scope.panel().saveValuesAndReturnError());

    EXPECT_EQ(scope.storedCustom("QZSpecificJobName"), "Input");
    EXPECT_EQ(scope.storedCustom("JobName"), "Q3 \\(draft\\)%x2C 50%x25");
    EXPECT_EQ(scope.storedCustom("ProfilePath"), "");
    // No favorite is selected, so none is named.
    EXPECT_EQ(scope.storedCustom("FavoriteName"), std::nullopt);
}

TEST(PanelSave, KeptDuplexAgainstMediaTypeConflictFailsTheSaveWithMinus9531) {
    PanelScope scope(Flavour::WithPpdChangeHook, {AlertSecondButtonReturn, AlertSecondButtonReturn});
    scope.host().printSettings()->setValue("sides", "two-sided-long-edge");
    ASSERT_TRUE(scope.host().willChangePPDOptionKeyValue("QZMediaType", "Transparency"));

    EXPECT_FALSE(scope.panel().saveValuesAndReturnError());
    EXPECT_EQ(scope.panel()._gatherPrintOptionFromUi(nullptr), TarnPDEByCocoa::conflictKept);
    ASSERT_EQ(scope.asked().size(), 2u);
    const AlertRequest& question = scope.asked().front();
    EXPECT_EQ(question.buttons, (std::vector<std::string>{"Change Setting", "Self Resolve Conflict"}));
    EXPECT_EQ(question.informativeText.back(), '\n');
    EXPECT_EQ(question.informativeText.find('\n'), question.informativeText.size() - 1);
    EXPECT_EQ(scope.marked("QZMediaType"), "Transparency");
    // The buttons the save disabled are enabled again.
    EXPECT_TRUE(scope.panel().showDetailedSettingsButton()->isEnabled());
}

// Taking the question's first button applies its resolution; one-sided printing puts no
// question at all.
TEST(PanelSave, AcceptedOrAbsentDuplexConflictLetsTheSaveThrough) {
    const struct {
        const char* sides;
        const char* mediaType;
        const char* markedAfter;
        std::size_t questions;
    } cases[] = {{"two-sided-short-edge", "Labels", "Plain", 1}, {"one-sided", "Transparency", "Transparency", 0}};
    for (const auto& probe : cases) {
        PanelScope scope(Flavour::WithPpdChangeHook, {AlertFirstButtonReturn});
        scope.host().printSettings()->setValue("sides", probe.sides);
        ASSERT_TRUE(scope.host().willChangePPDOptionKeyValue("QZMediaType", probe.mediaType));
        EXPECT_TRUE(scope.panel().saveValuesAndReturnError()) << probe.sides;
        EXPECT_EQ(scope.asked().size(), probe.questions) << probe.sides;
        EXPECT_EQ(scope.marked("QZMediaType"), probe.markedAfter) << probe.sides;
    }
}

TEST(PanelSave, LegacyTicketTakesTheCustomEntriesAndThePpdIsLeftAlone) {
    PanelScope scope(Flavour::WithoutPpdChangeHook);
    scope.panel().willShow();
    scope.userChanges("MediaTypeSequence", "5");
    EXPECT_TRUE(scope.panel().saveValuesAndReturnError());

    const std::string key = PrintSettingsTicket::customKey("MediaTypeSequence");
    EXPECT_EQ(scope.host().legacyTicket()->string(key), "5");
    EXPECT_EQ(scope.host().legacyTicket()->clientIdentifier(key), TarnPDEByCocoa::panelKind());
    EXPECT_TRUE(scope.host().ppdChanges().empty());
    EXPECT_EQ(scope.panel()._PPD(), nullptr);
}

TEST(PanelRestore, CustomEntryWinsOverThePpdDictionaryWhichWinsOverTheMarkedChoice) {
    PanelScope scope;
    setCustomEntry(scope.host(), "ColorMode", "Grayscale");
    ASSERT_TRUE(scope.host().willChangePPDOptionKeyValue("OffsetMode", "Set"));
    ASSERT_TRUE(scope.host().willChangePPDOptionKeyValue("SamplePrintMode", "Hold"));
    PlistDictionary ppdDictionary{{"ColorMode", "Color"}, {"OffsetMode", "Job"}};

    EXPECT_EQ(scope.panel()._restorePrintOptionToUi(&ppdDictionary), TarnPDEByCocoa::noErr);
    const PlistDictionary& model = scope.panel().printOption();
    EXPECT_EQ(textOf(model, "ColorMode"), "Grayscale");
    EXPECT_EQ(textOf(model, "OffsetMode"), "Job");
    EXPECT_EQ(textOf(model, "SamplePrintMode"), "Hold");
    EXPECT_EQ(textOf(model, "DuplexMode"), "None");
}

TEST(PanelRestore, StartsFromTheDefaultsAndTakesTheJobNameProfileAndMarkedChoices) {
    PanelScope scope;
    scope.panel().printOption().set("ColorMode", "Grayscale");
    setCustomEntry(scope.host(), "QZSpecificJobName", "Input");
    setCustomEntry(scope.host(), "JobName", "Q3%x2C final");
    setCustomEntry(scope.host(), "ProfilePath", "/profiles/coated%x2C glossy.cps");
    ASSERT_TRUE(scope.host().willChangePPDOptionKeyValue("DuplexMode", "DuplexTumble"));
    scope.panel().willShow();

    EXPECT_TRUE(scope.panel().restoreValuesAndReturnError());
    EXPECT_EQ(scope.option("ColorMode"), "Color");
    EXPECT_EQ(scope.option("DuplexMode"), "DuplexTumble");
    EXPECT_EQ(scope.manager().getStringValueFromKey("DuplexMode"), "DuplexTumble");
    EXPECT_EQ(scope.panel().specificJobNameValue(), "Input");
    EXPECT_EQ(scope.panel().jobNameValue(), "Q3, final");
    EXPECT_EQ(scope.panel().escapedJobNameValue(), "Q3, final");
    EXPECT_EQ(scope.panel().selectedProfilePath(), "/profiles/coated, glossy.cps");
}

TEST(PanelRestore, SavedSettingsComeBackInTheNextDialog) {
    PanelScope scope;
    scope.panel().willShow();
    scope.userChanges("StapleMode", "TopLeftCorner");
    scope.userChanges("ColorMode", "Grayscale");
    scope.userChanges("MediaTypeSequence", "7");
    scope.userChanges("PaperColorBypass", "Blue");
    scope.userChanges("PaperTypeCustomName", "Gloss 50%, O'Neil");
    ASSERT_TRUE(scope.panel().saveValuesAndReturnError());
    EXPECT_EQ(scope.storedCustom("PaperTypeCustomName"), "Gloss 50%x25%x2C O%x27Neil");
    const PlistDictionary saved = scope.panel().printOption();

    scope.reopenPanel();
    scope.panel().restoreValuesAndReturnError();
    const PlistDictionary& restored = scope.panel().printOption();
    for (const auto& [key, value] : restored) EXPECT_EQ(textOf(restored, key), textOf(saved, key)) << key;
    EXPECT_EQ(textOf(restored, "StapleMode"), "TopLeftCorner");
    EXPECT_EQ(textOf(restored, "SpotColorCorrection"), "False");
    EXPECT_EQ(textOf(restored, "PaperColorBypass"), "Blue");
    EXPECT_EQ(textOf(restored, "PaperTypeCustomName"), "Gloss 50%, O'Neil");
}

TEST(PanelSave, DetailedSettingsOkWritesOnlyWhatDiffersFromTheModelBeforeTheWindow) {
    PanelScope scope;
    scope.panel().willShow();
    runWindowsWith([&](ModalWindow& window) {
        scope.userChanges("ColorMode", "Grayscale");
        // Entries the fast save must not touch, since their settings did not change.
        scope.host().printSettings()->setValue("OffsetMode", "Set");
        scope.host().printSettings()->setValue("PagePrintOnCenter", "True");
        static_cast<DetailedSettingsWinController&>(window).okButton();
    });

    scope.panel().clickedShowDetailedSettingsButton();
    EXPECT_EQ(scope.setting("ColorMode"), "Grayscale");
    EXPECT_EQ(scope.setting("OffsetMode"), "Set");
    EXPECT_EQ(scope.setting("PagePrintOnCenter"), "True");
    EXPECT_EQ(textOf(scope.panel().printOptionOld(), "ColorMode"), "Color");
}

TEST(PanelSave, UserNameReachesTheJobPrecomposedOnTheFullSaveOnly) {
    const std::string decomposed = "Mu\xCC\x88ller";
    const std::string precomposed = "M\xC3\xBCller";
    PanelScope scope;
    scope.panel().willShow();
    scope.panel().printOption().set("UserName", decomposed);
    EXPECT_TRUE(scope.panel().saveValuesAndReturnError());
    EXPECT_EQ(scope.storedCustom("UserName"), precomposed);

    scope.panel().printOption().set("UserName", decomposed);
    EXPECT_TRUE(scope.panel().saveValuesAndReturnError_Fast());
    EXPECT_EQ(scope.storedCustom("UserName"), decomposed);
}
