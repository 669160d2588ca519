#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "panes/PlainControlHelpers.h"
#include "panes/PlainButton.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

std::vector<std::string> titles(const PlainPopUpButton& popup) {
    std::vector<std::string> list;
    for (const auto& item : popup.items()) list.push_back(item.title);
    return list;
}

}  // namespace

// Values are read and written by setting key (the value first); the defaults are taken
// once, when first asked for.
TEST(PaneValues, ReadAndWriteBySettingKeyAndTakeTheDefaultsOnce) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    manager.setStringValue("B", "SideModeFront");
    EXPECT_EQ(manager.getStringValueFromKey("SideModeFront"), std::optional<std::string>("B"));
    EXPECT_EQ(manager.getStringValueFromKey("SideModeBack"), std::optional<std::string>("A"));
    EXPECT_EQ(manager.getStringValueFromKey("NoSuchSetting"), std::nullopt);
    const PlistDictionary defaults = manager.defaultSettings();
    EXPECT_EQ(defaults.stringFor("SideModeFront"), std::optional<std::string>("B"));
    EXPECT_EQ(defaults.stringFor("Deep"), std::optional<std::string>("True"));
    EXPECT_EQ(defaults.stringFor("DeepName"), std::optional<std::string>(""));
    manager.setStringValue("A", "SideModeFront");
    manager.setStringValue("False", "Deep");
    EXPECT_EQ(manager.defaultSettings(), defaults);
}

// Gathering answers nothing when the server's settings apply; restoring nothing leaves
// every setting as it was and asks no pane for anything.
TEST(PaneValues, GatheringAndRestoringNothing) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    manager.setStringValue("Spot", "SideNameFront");
    EXPECT_EQ(manager.gatherPrintOptionValues(nullptr, std::nullopt, true, false, false), std::nullopt);
    const auto gathered = manager.gatherPrintOptionValues(nullptr, std::nullopt, false, false, false);
    ASSERT_TRUE(gathered);
    EXPECT_EQ(gathered->stringFor("SideNameFront"), std::optional<std::string>("Spot"));
    EXPECT_EQ(gathered->keys(), (std::vector<std::string>{"Deep", "DeepName", "Loose", "LooseOwn", "SideModeFront",
                                                         "SideNameFront", "SideModeBack", "SideNameBack"}));
    EXPECT_TRUE(manager.restorePrintOptionValues(nullptr));
    EXPECT_EQ(manager.gatherPrintOptionValues(nullptr, std::nullopt, false, false, false), gathered);
    EXPECT_EQ(scope.recording("Page").calls(), (std::vector<std::string>{"initializePanel", "profileUiInformations"}));
}

TEST(PaneValues, RestoringShowsTheValuesAndPreparesThePanesByName) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    const PlistDictionary printOption = {{"SideModeBack", "B"}, {"Loose", "True"}, {"DeepName", "Proof"}};
    EXPECT_TRUE(manager.restorePrintOptionValues(&printOption));
    EXPECT_EQ(manager.getStringValueFromKey("SideModeBack"), std::optional<std::string>("B"));
    EXPECT_EQ(manager.getStringValueFromKey("Loose"), std::optional<std::string>("True"));
    EXPECT_EQ(manager.getStringValueFromKey("DeepName"), std::optional<std::string>("Proof"));
    EXPECT_EQ(scope.recording("Page").calls(),
              (std::vector<std::string>{"initializePanel", "profileUiInformations", "writeAutomaticPapaerTraySelection",
                                        "panelView"}));
    EXPECT_EQ(scope.recording("Layout").calls().back(), "panelView");
    EXPECT_EQ(scope.recording("Layout").calls().end()[-2], "willShow");
    EXPECT_EQ(scope.recording("Other").calls().back(), "panelView");
    EXPECT_EQ(std::count(scope.recording("Other").calls().begin(), scope.recording("Other").calls().end(), "willShow"), 0);
}

TEST(PaneValues, APaneFailingWhileRestoringIsShownAndStopsTheWalk) {
    ManagerScope scope(fixtureBundlePath());
    AlertScript alerts;
    scope.recording("Layout").failWillShowWith("layout went wrong");
    const PlistDictionary printOption = {{"Loose", "True"}};
    EXPECT_TRUE(scope.manager().restorePrintOptionValues(&printOption));
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.asked()[0].informativeText, "layout went wrong");
    EXPECT_EQ(alerts.asked()[0].messageText, "Alert_Exception");  // the fixture has no string tables
    // Layout comes before Other and Page in the table: they were never reached.
    EXPECT_EQ(scope.recording("Other").panelViewCount(), 0);
    EXPECT_EQ(scope.recording("Page").calls().back(), "profileUiInformations");
    EXPECT_EQ(scope.manager().getStringValueFromKey("Loose"), std::optional<std::string>("True"));
}

TEST(PaneValues, ProfileMenusAreNumberedAndNamedFromTheCurrentProfile) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("Press.cps");
    OstrinTest::writeFile(path, "Tone2Name=Warm\r\nOther=1=2\r\nno separator\r\n");
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    TestRecordingPane& page = scope.recording("Page");
    EXPECT_EQ(titles(*page.toneMenu()), (std::vector<std::string>{"Tone 1", "Tone 2", "Tone 3"}));
    EXPECT_EQ(representedObjectOfMenuItemForKey(page.toneMenu()->items()[2], "optionKeyword")->stringOr(""), "Tone3");

    manager.updateProfileByBundleName("Page", path);
    EXPECT_EQ(manager.currentProfilePath(), path);
    EXPECT_EQ(page.calls().back(), "profileUiInformations");
    const auto profile = manager.dictionaryOfCurrentProfile();
    ASSERT_TRUE(profile);
    EXPECT_EQ(*profile, (PlistDictionary{{"Tone2Name", "Warm"}, {"Other", "1=2"}}));
    manager.buildPaneUi(page, nullptr);
    EXPECT_EQ(titles(*page.toneMenu()), (std::vector<std::string>{"Tone 1", "Warm", "Tone 3"}));

    manager.updateProfileByBundleName("NoSuchPane", folder.file("other.cps"));
    EXPECT_EQ(manager.currentProfilePath(), path);
    manager.updateProfilesOfAllBundles("");
    EXPECT_EQ(manager.currentProfilePath(), "");
    EXPECT_EQ(manager.dictionaryOfCurrentProfile(), std::nullopt);
}

TEST(PaneValues, EnabledStatesFollowTheServerSetting) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    auto front = *scope.pane("Sides+Front")->getListVORNUI();
    manager.updateEnabledStates(std::nullopt, true, true, false);
    EXPECT_FALSE(front[0]->isEnabled());
    EXPECT_EQ(scope.recording("Other").calls().back(), "updateEnabledStates:server");
    manager.updateEnabledStates(std::nullopt, true, false, false);
    EXPECT_TRUE(front[0]->isEnabled());
    EXPECT_TRUE(manager._isEnable(std::string("pdf"), false, true, true));
    EXPECT_FALSE(manager._isEnable(std::nullopt, true, false, false));
}

TEST(PaneValues, WithoutAnyPaneThePerPaneWalksAreAProgrammingError) {
    DiagnosticLines diagnostics;
    ManagerScope scope(fixtureBundlePath(), false);
    scope.manager().updateEnabledStates(std::nullopt, true, false, false);
    scope.manager().updateProfilesOfAllBundles("/tmp/x.cps");
    EXPECT_TRUE(diagnostics.contains("## plug-in table is nil"));
    EXPECT_EQ(scope.manager().currentProfilePath(), "");
    const PlistDictionary printOption = {{"Loose", "True"}};
    EXPECT_TRUE(scope.manager().restorePrintOptionValues(&printOption));
}

TEST(PaneValues, RevertingAPaneShowsItsDefaults) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    manager.setStringValue("B", "SideModeBack");
    manager.revertToDefaultByBundleName("Sides+Front");
    EXPECT_EQ(manager.getStringValueFromKey("SideModeBack"), std::optional<std::string>("B"));
    manager.revertToDefaultByBundleName("Sides+Back");
    EXPECT_EQ(manager.getStringValueFromKey("SideModeBack"), std::optional<std::string>("A"));
    manager.revertToDefaultByBundleName("Page");
    EXPECT_EQ(scope.recording("Page").calls().back(), "revertToDefault");
}

TEST(PaneValues, HidingAndEnablingListsOfControls) {
    ManagerScope scope(fixtureBundlePath());
    auto controls = *scope.pane("Sides+Front")->getListVORNUI();
    auto box = std::make_shared<PlainButton>();
    const std::vector<std::shared_ptr<ViewNode>> list = {controls[0], box, nullptr};
    scope.manager().setHidden(true, list);
    EXPECT_TRUE(controls[0]->isHidden());
    EXPECT_TRUE(box->isHiddenView());
    scope.manager().setEnabled(false, list);
    EXPECT_FALSE(controls[0]->isEnabled());
    EXPECT_FALSE(box->isEnabled());
    EXPECT_FALSE(controls[1]->isHidden());
}
