#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "core/Bundle.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

const std::vector<std::string> loadablePanes = {"Coded", "Deep", "Layout", "Loose",
                                                "Other", "Page", "Sides+Front", "Sides+Back"};

}  // namespace

// Every usable bundle loads once for each role, in path order; a bundle used in two roles
// has one controller per role, and one outside the tree loads under its bare name.
TEST(PaneLoading, LoadsEveryUsableBundleOnceForEachRoleInPathOrder) {
    ManagerScope scope(fixtureBundlePath());
    EXPECT_EQ(scope.paneNames(), loadablePanes);
    auto front = scope.pane("Sides+Front");
    auto back = scope.pane("Sides+Back");
    ASSERT_TRUE(front && back);
    EXPECT_NE(front, back);
    EXPECT_EQ(scope.manager().roleName(front.get()), std::optional<std::string>("Front"));
    EXPECT_EQ(scope.manager().roleName(back.get()), std::optional<std::string>("Back"));
    // Each role built the settings of its own side from the same layout.
    auto frontControls = front->getListVORNUI();
    ASSERT_TRUE(frontControls && frontControls->size() == 2);
    EXPECT_EQ((*frontControls)[0]->mainKeyword(), "SideModeFront");
    EXPECT_EQ((*back->getListVORNUI())[1]->mainKeyword(), "SideNameBack");
    EXPECT_TRUE(scope.manager().vornMgr().controlsOf("SideModeBack"));
    EXPECT_EQ(front->panelName(), "Side Front");

    EXPECT_EQ(scope.manager().roleName(scope.pane("Loose").get()), std::nullopt);
    // A setting described only in the pane's own UI resource.
    EXPECT_EQ(scope.manager().getStringValueFromKey("LooseOwn"), std::optional<std::string>("Y"));
}

TEST(PaneLoading, BrokenBundlesAreSkippedAndTheRestWorks) {
    DiagnosticLines diagnostics;
    ManagerScope scope(fixtureBundlePath());
    for (const char* broken : {"Gone", "Stranger", "Refusing", "NoClass", "Unlayouted"})
        EXPECT_FALSE(scope.pane(broken)) << broken;
    EXPECT_TRUE(diagnostics.contains("cannot load bundle"));
    EXPECT_TRUE(diagnostics.contains("no pane class FixtureStranger"));
    EXPECT_EQ(scope.manager().panelNameOfBundleName("Coded"), std::optional<std::string>("Pane from code"));
    EXPECT_EQ(scope.manager().panelNameOfBundleName("Refusing"), std::nullopt);
}

TEST(PaneLoading, LoadingByNameAnswersARefusingPaneWithoutKeepingIt) {
    ManagerScope scope(fixtureBundlePath());
    EXPECT_FALSE(scope.manager()._loadPaneControllerWithName("Loose"));
    EXPECT_FALSE(scope.manager()._loadPaneControllerWithName("Sides+Front"));
    EXPECT_TRUE(scope.manager()._loadPaneControllerWithName("Refusing"));
    EXPECT_FALSE(scope.manager()._loadPaneControllerWithName("Missing"));
    EXPECT_EQ(scope.paneNames(), loadablePanes);
}

TEST(PaneLoading, LoadPanelViewLoadsOnePanelPerCall) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    EXPECT_TRUE(manager.loadPanelView());  // Coded
    EXPECT_TRUE(manager.loadPanelView());  // Deep
    EXPECT_EQ(scope.recording("Layout").panelViewCount(), 0);
    EXPECT_TRUE(manager.loadPanelView());
    EXPECT_EQ(scope.recording("Layout").panelViewCount(), 2);  // looked up with its panel, then asked
    EXPECT_EQ(scope.recording("Other").panelViewCount(), 0);
    for (std::size_t loaded = 3; loaded < loadablePanes.size(); ++loaded) EXPECT_TRUE(manager.loadPanelView());
    EXPECT_FALSE(manager.loadPanelView());
    EXPECT_FALSE(manager.loadPanelView());
    EXPECT_EQ(scope.recording("Page").panelViewCount(), 2);
}

TEST(PaneLoading, PanelsOfTheBuiltInPaneAreLaidOutOnFirstRequest) {
    ManagerScope scope(fixtureBundlePath());
    auto view = scope.manager().panelViewOfBundleName("Deep");
    ASSERT_TRUE(view);
    ASSERT_EQ(view->subviews().size(), 1u);
    EXPECT_EQ(view->subviews()[0]->className(), "TabView");
    EXPECT_GT(view->frame().width, 480);
    EXPECT_GT(view->frame().height, 0);
    EXPECT_EQ(scope.manager().panelViewOfBundleName("Deep"), view);
    EXPECT_EQ(scope.manager().panelViewOfBundleName("Nothing"), nullptr);
}

TEST(PaneLoading, RolesFollowThePlusSignOfNodesAndDependenciesButNotOfTheMainKeyword) {
    const PlistDictionary tree = {
        {"bundleName", "Finishing+Front"},
        {"dependency", PlistDictionary{{"mainKeyword", PlistDictionary{{"bundleName", "Main+Key"}}},
                                       {"Staple", PlistDictionary{{"bundleName", "Finishing+Back"}}},
                                       {"Punch", PlistDictionary{{"bundleName", "Punch+Left"}}}}},
        {"items", PlistArray{PlistDictionary{{"bundleName", "Color"}},
                             PlistDictionary{{"bundleName", "Finishing+Front"}},
                             PlistDictionary{{"items", PlistArray{PlistDictionary{{"bundleName", "Deep+Inner"}}}}}}},
    };
    PanePlugInMgr::RoleTable roles;
    PanePlugInMgr::_gatherPlugInRoleNames(tree, roles);
    const PanePlugInMgr::RoleTable expected = {
        {"Finishing", {"Front", "Back"}}, {"Punch", {"Left"}}, {"Deep", {"Inner"}}};
    EXPECT_EQ(roles, expected);
    using Split = std::pair<std::string, std::optional<std::string>>;
    EXPECT_EQ(PanePlugInMgr::_separateBundleName("Finishing+Back"), Split("Finishing", "Back"));
    EXPECT_EQ(PanePlugInMgr::_separateBundleName("Finishing"), Split("Finishing", std::nullopt));
    EXPECT_EQ(PanePlugInMgr::_separateBundleName("A+b+c"), Split("A", "b"));
    EXPECT_EQ(PanePlugInMgr::_composeBundleName("Finishing", std::string("Front")), "Finishing+Front");
    EXPECT_EQ(PanePlugInMgr::_composeBundleName("Finishing", std::nullopt), "Finishing");
}

TEST(PaneLoading, ReadsTheExtensionBundleInformation) {
    DiagnosticLines diagnostics;
    ManagerScope scope(fixtureBundlePath(), false);
    PanePlugInMgr& manager = scope.manager();
    EXPECT_TRUE(manager.getTabTreeView());
    EXPECT_TRUE(manager.isHiddenDuplex());
    EXPECT_FALSE(manager.isHiddenNumCopies());
    EXPECT_EQ(manager.isPOD(), "FixtureUI");
    EXPECT_EQ(manager.getUIFilePath(), fixtureBundlePath() + "/Contents/Resources/FixtureUI.plist");
    EXPECT_TRUE(diagnostics.contains("###loadEncDec: error -1"));
    EXPECT_EQ(manager.plugInTable(), nullptr);
    ASSERT_TRUE(manager.panesTreeDictionary());
    EXPECT_EQ(manager.resolveItem(*manager.panesTreeDictionary()), *manager.panesTreeDictionary());
}

TEST(PaneLoading, MissingTreeAndUISettingsAreReported) {
    DiagnosticLines diagnostics;
    ManagerScope scope(fixtureBundlePath() + "/Contents/PlugIns/Sides.bundle", false);
    EXPECT_EQ(scope.manager().getUIFilePath(), "");
    EXPECT_EQ(scope.manager().panesTreeDictionary(), nullptr);
    EXPECT_FALSE(scope.manager().loadPlugIns());
    EXPECT_TRUE(diagnostics.contains("###Error:UISetting Plist file not found!"));
    EXPECT_TRUE(diagnostics.contains("###Error: panesTreeDictionary does not loaded."));
}

TEST(PaneLoading, RebuildKeepsThePanesAndTakesTheDefaultsAnew) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    auto loose = scope.pane("Loose");
    EXPECT_EQ(manager.defaultSettings().stringFor("Loose"), std::optional<std::string>("False"));
    manager.setStringValue("True", "Loose");
    EXPECT_TRUE(manager.rebuildPanes("Missing.ppd", "PanesTree"));
    EXPECT_EQ(scope.pane("Loose"), loose);
    EXPECT_EQ(scope.paneNames(), loadablePanes);
    EXPECT_EQ(manager.defaultSettings().stringFor("Loose"), std::optional<std::string>("True"));
    EXPECT_EQ(scope.recording("Other").panelViewCount(), 1);
}

TEST(PaneLoading, ShowingThePanesMarksTheServerListsFetched) {
    ManagerScope scope(fixtureBundlePath());
    PanePlugInMgr& manager = scope.manager();
    // An unresolvable conflict with the front side's current mode counts only once the
    // print server's lists are in.
    const PlistDictionary rules = {{"SideModeFront", PlistDictionary{{"A", PlistDictionary{}}}}};
    EXPECT_FALSE(manager.isInitializedNetworkData());
    EXPECT_FALSE(manager.vornMgr().findUnrestorableConflictInfo(rules, 3, "x"));
    manager.willShowAllBundle();
    EXPECT_TRUE(manager.isInitializedNetworkData());
    EXPECT_TRUE(manager.vornMgr().findUnrestorableConflictInfo(rules, 3, "x"));
    for (const char* name : {"Layout", "Other", "Page"})
        EXPECT_EQ(scope.recording(name).calls().back(), "willShow") << name;
}
