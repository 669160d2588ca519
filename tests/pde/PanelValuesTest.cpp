#include <gtest/gtest.h>

#include "PanelTestSupport.h"
#include "favorites/JobNameWinController.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PanelButton.h"
#include "pde/PanelLabel.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/PrintSettings.h"
#include "settings_ui/VORNUI.h"

using namespace PanelTest;

namespace {

const std::string BypassPaperType =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

}  // namespace

TEST(PanelValues, GatherAndRestoreChangeNothingBeforeTheControlsAreBuilt) {
    PanelScope scope;
    PlistDictionary printOption{{"ColorMode", "Grayscale"}};
    EXPECT_EQ(scope.panel()._gatherValuesFromPane(printOption), TarnPDEByCocoa::noErr);
    EXPECT_EQ(printOption, (PlistDictionary{{"ColorMode", "Grayscale"}}));
    EXPECT_EQ(scope.panel()._restoreValuesToPane(printOption), TarnPDEByCocoa::noErr);
    scope.panel()._buildUi();
    EXPECT_EQ(scope.manager().getStringValueFromKey("ColorMode"), "Color");
}

TEST(PanelValues, GatherWithTheBypassTrayTakesBothSheetsAndTheSwitchAsABoolean) {
    PanelScope scope;
    scope.panel().willShow();
    scope.userChanges("AutoTraySettingToBypass", "True");
    scope.userChanges("PaperColorBypass", "Blue");
    scope.userChanges("MediaTypeSequenceBypass", "3");
    scope.userChanges("MediaTypeWeight", "81to105");
    scope.userChanges("PagePrintOnCenter", "True");

    PlistDictionary printOption{{"AutoTraySettingToBypass", false}};
    scope.panel()._gatherValuesFromPane(printOption);
    EXPECT_TRUE(printOption.find("AutoTraySettingToBypass") &&
                *printOption.find("AutoTraySettingToBypass") == PlistValue(true));
    EXPECT_EQ(printOption.stringFor("PaperColorBypass"), "Blue");
    EXPECT_EQ(printOption.stringFor("MediaTypeSequenceBypass"), "3");
    EXPECT_EQ(printOption.stringFor(BypassPaperType), "Auto_Off_Uncoated_Off_None_None");
    // The bypass weight is listed under a control the bypass sheet never builds.
    EXPECT_FALSE(printOption.contains("MediaTypeWeightBypass"));
    EXPECT_EQ(printOption.stringFor("MediaTypeWeight"), "81to105");
    EXPECT_TRUE(printOption.find("PagePrintOnCenter") &&
                *printOption.find("PagePrintOnCenter") == PlistValue(true));
    EXPECT_EQ(printOption.stringFor("NumCopies"), "1");
    EXPECT_EQ(printOption.stringFor("Collate"), "True");
    EXPECT_FALSE(scope.panel().bypassPaperTraySelectionButton()->isEnabled());
}

TEST(PanelValues, GatherWithoutTheBypassSwitchLeavesTheBypassSheetAndItsButtonAlone) {
    PanelScope scope;
    scope.panel().willShow();
    scope.panel().bypassPaperTraySelectionButton()->setEnabled(false);
    PlistDictionary printOption;
    scope.panel()._gatherValuesFromPane(printOption);
    EXPECT_FALSE(printOption.contains("AutoTraySettingToBypass"));
    EXPECT_FALSE(printOption.contains("PaperColorBypass"));
    EXPECT_EQ(printOption.stringFor("PaperTypeD"), "Auto");
    EXPECT_EQ(printOption.stringFor("MediaTypeSequence"), "0");
    // The custom paper name is gathered only when one is typed.
    EXPECT_FALSE(printOption.contains("PaperTypeCustomName"));
    EXPECT_FALSE(scope.panel().bypassPaperTraySelectionButton()->isEnabled());
}

TEST(PanelValues, RestoreShowsBothSheetsAndTheBypassSwitch) {
    PanelScope scope;
    scope.panel().willShow();
    PlistDictionary printOption{{"AutoTraySettingToBypass", true},
                                {"PaperColorBypass", "Yellow"},
                                {"MediaTypeSequenceBypass", "2"},
                                {"PaperTypeD", "Coated"},
                                {"MediaTypeWeight", "64to80"},
                                {"StapleMode", "Saddle"},
                                {"MediaTypeDrilled", ""}};
    scope.panel()._restoreValuesToPane(printOption);
    PanePlugInMgr& manager = scope.manager();
    for (const auto& [key, shown] : {std::pair{"AutoTraySettingToBypass", "True"}, {"PaperColorBypass", "Yellow"},
                                     {"MediaTypeSequenceBypass", "2"}, {"PaperTypeD", "Coated"},
                                     {"MediaTypeWeight", "64to80"}, {"MediaTypeDrilled", "None"}, {"StapleMode", "Saddle"}})
        EXPECT_EQ(manager.getStringValueFromKey(key), shown) << key;
    EXPECT_EQ(scope.panel().panelControl("StapleMode")->getOldValue(), "Saddle");
    EXPECT_FALSE(scope.panel().bypassPaperTraySelectionButton()->isEnabled());

    scope.panel()._restoreValuesToPane(PlistDictionary{{"AutoTraySettingToBypass", "False"}, {"PagePrintOnCenter", true}});
    EXPECT_EQ(manager.getStringValueFromKey("AutoTraySettingToBypass"), "False");
    EXPECT_EQ(manager.getStringValueFromKey("PagePrintOnCenter"), "True");
    EXPECT_TRUE(scope.panel().bypassPaperTraySelectionButton()->isEnabled());
    // Without the key, printing on the centre is off.
    scope.panel()._restoreValuesToPane(PlistDictionary{});
    EXPECT_EQ(manager.getStringValueFromKey("PagePrintOnCenter"), "False");
}

TEST(PanelValues, RestoreOnlyWhileShownPushesCopiesAndTrayIntoThePrintSettings) {
    PanelScope scope;
    scope.panel()._buildUi();
    scope.panel()._restoreValuesToPane(PlistDictionary{{"NumCopies", "3"}, {"QVInputSlot", "Tray2"}});
    EXPECT_EQ(scope.setting("copies"), std::nullopt);

    scope.panel().willShow();
    scope.panel()._restoreValuesToPane(PlistDictionary{{"NumCopies", "3"}, {"QVInputSlot", "Tray2"}});
    EXPECT_EQ(scope.setting("copies"), "3");
    EXPECT_EQ(scope.setting("QVInputSlot"), "Tray2");
    EXPECT_EQ(scope.manager().getStringValueFromKey("QVInputSlot"), "Tray2");

    EXPECT_TRUE(scope.panel().shouldHide());
    scope.panel()._restoreValuesToPane(PlistDictionary{{"NumCopies", "4"}});
    EXPECT_EQ(scope.setting("copies"), "3");
}

TEST(PanelValues, ChangesOfObservedSettingsReachTheModelAtOnce) {
    PanelScope scope;
    scope.panel().willShow();
    scope.userChanges("ColorMode", "Grayscale");
    scope.userChanges("DuplexMode", "DuplexTumble");
    scope.userChanges("SamplePrintMode", "Sample");
    scope.userChanges("OffsetMode", "Job");
    EXPECT_EQ(scope.option("ColorMode"), "Grayscale");
    EXPECT_EQ(scope.option("SamplePrintMode"), "Sample");
    // The duplex setting is not observed: the model takes it with the next gather.
    EXPECT_EQ(scope.option("DuplexMode"), "DuplexTumble");

    scope.panel().shouldHide();
    scope.panel().configuringNotification(false);
    scope.userChanges("ColorMode", "Color");
    EXPECT_EQ(scope.option("ColorMode"), "Grayscale");
}

TEST(PanelValues, RevertToDefaultsShowsTheDefaultsWithOneSidedPrintingAndCollation) {
    PanelScope scope;
    scope.panel().willShow();
    scope.userChanges("StapleMode", "Saddle");
    scope.userChanges("DuplexMode", "DuplexNoTumble");
    scope.panel().setCollate(false);
    scope.panel().revertToDefaultSettingsButton()->performClick();
    EXPECT_EQ(scope.option("StapleMode"), "None");
    EXPECT_EQ(scope.option("DuplexMode"), "None");
    EXPECT_EQ(scope.option("Collate"), "True");
}

TEST(PanelValues, TrayButtonsOpenTheirSheetAndTheModelTakesItsValuesWhenItCloses) {
    PanelScope scope;
    scope.panel().willShow();
    std::vector<std::string> shown;
    runWindowsWith([&](ModalWindow& window) {
        shown.push_back(window.windowTitle());
        scope.userChanges("PaperColor", "Green");
        static_cast<PdeAutomaticPaperTraySelection&>(window).clickButtonClose();
    });
    scope.panel().automaticPaperTraySelectionButton()->performClick();
    EXPECT_EQ(scope.option("PaperColor"), "Green");
    scope.panel().bypassPaperTraySelectionButton()->performClick();
    EXPECT_EQ(shown, (std::vector<std::string>{"Automatic Tray Selection", "Bypass Tray Settings"}));
}

TEST(PanelValues, JobNameButtonTakesTheDialogsValuesOnlyOnOk) {
    PanelScope scope;
    scope.panel().willShow();
    EXPECT_EQ(scope.panel().jobNameLabel()->text(), "Auto");
    bool ok = false;
    std::vector<std::string> shown;
    runWindowsWith([&](ModalWindow& window) {
        auto& dialog = dynamic_cast<JobNameWinController&>(window);
        shown = {dialog.specificJobName(), dialog.jobName()};
        dialog.jobNameRadio().selectRow(1);
        dialog.selectRatio();
        dialog.jobNameField().setStringValue("Q3 (final)");
        if (ok)
            dialog.clickedOK();
        else
            dialog.clickedCancel();
    });
    scope.panel().jobNameButton()->performClick();
    EXPECT_EQ(scope.panel().specificJobNameValue(), "Auto");
    EXPECT_EQ(shown, (std::vector<std::string>{"Auto", ""}));

    ok = true;
    scope.panel().jobNameButton()->performClick();
    EXPECT_EQ(scope.panel().specificJobNameValue(), "Input");
    EXPECT_EQ(scope.panel().escapedJobNameValue(), "Q3 \\(final\\)");
    EXPECT_EQ(scope.panel().jobNameValue(), "Q3 (final)");
    EXPECT_EQ(scope.panel().jobNameLabel()->text(), "Q3 (final)");
}

TEST(PanelValues, CancelledDetailedSettingsPutTheModelBackToTheSnapshotTakenAfterTheReload) {
    PanelScope scope;
    scope.panel().willShow();
    scope.userChanges("StapleMode", "Saddle");
    runWindowsWith([&](ModalWindow&) {
        scope.userChanges("ColorMode", "Grayscale");
        scope.userChanges("MailAddress", "ana@example.com");
    });
    scope.panel().showDetailedSettingsButton()->performClick();
    EXPECT_EQ(scope.option("StapleMode"), "Saddle");
    EXPECT_EQ(scope.option("MailAddress"), "");
    EXPECT_EQ(scope.option("ColorMode"), "Color");
    EXPECT_EQ(scope.manager().getStringValueFromKey("MailAddress"), "");
}

TEST(PanelValues, AnotherPanelsPpdChoiceReachesTheModelWhenThePpdOffersIt) {
    PanelScope scope;
    scope.panel().PPDOptionKeyValueDidChange("OffsetMode", "Job");
    EXPECT_EQ(scope.option("OffsetMode"), "Job");
    scope.panel().PPDOptionKeyValueDidChange("OffsetMode", "Sideways");
    scope.panel().PPDOptionKeyValueDidChange("QVUnknown", "Job");
    EXPECT_EQ(scope.option("OffsetMode"), "Job");
    EXPECT_EQ(scope.option("QVUnknown"), "<absent>");
}
