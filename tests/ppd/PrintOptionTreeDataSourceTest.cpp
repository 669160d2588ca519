#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"
#include "panes/PanePlugInMgr.h"
#include "ppd/PrintOptionTreeDataSource.h"

using namespace ComQuorvantVelmar_Plugin;
namespace fs = std::filesystem;

namespace {

// Stands in for the pane plug-in manager: answers nodes unchanged, as the manager does,
// or from answers given per item name; knows the titles of the loaded panes.
class PaneManagerStandIn : public PaneTreeResolver {
public:
    PlistDictionary resolveItem(const PlistDictionary& item, bool expandDependency) override {
        ++resolutions;
        expandedAsked = expandedAsked || expandDependency;
        const auto answer = answers.find(item.stringFor("itemName", ""));
        return answer != answers.end() ? answer->second : item;
    }
    std::optional<std::string> panelNameOfBundleName(const std::string& name) override {
        const auto found = panelNames.find(name);
        return found != panelNames.end() ? std::optional(found->second) : std::nullopt;
    }

    std::map<std::string, std::string> panelNames{{"Page", "Paper"}, {"Finishing", "Finishing"}, {"Color", "Colour"}};
    std::map<std::string, PlistDictionary> answers;
    int resolutions = 0;
    bool expandedAsked = false;
};

PlistDictionary pane(const std::string& bundle, PlistArray items = {}) {
    return {{"bundleName", bundle}, {"items", std::move(items)}};
}
PlistDictionary setting(const std::string& alias, bool differs = false) {
    return {{"mainAlias", alias}, {"differedWithDefault", differs}};
}
PlistDictionary group(const std::string& name, PlistArray items) { return {{"itemName", name}, {"items", std::move(items)}}; }

// The pane tree of a press with paper, finishing and colour panes; the stapling mode and
// the colour profile differ from the defaults.
PlistArray pressPanes() {
    return {pane("Page", {setting("Paper size"), setting("Tray")}),
            pane("Finishing", {group("Staple", {setting("Staple mode", true), setting("Staple position")}),
                               setting("Punch")}),
            pane("Color", {setting("Profile", true)})};
}

// A plug-in bundle in a temporary folder whose pane tree is tree, registered for one test.
class SummaryTree : public ::testing::Test {
protected:
    void SetUp() override {
        PreferredLanguages::setFirst("en");
        const std::string resources = _folder.file("Tree.bundle/Contents/Resources");
        fs::create_directories(resources);
        PlistIO::writeFile(_folder.file("Tree.bundle/Contents/Info.plist"), PlistDictionary{{"CFBundleName", "Tree"}});
        PlistIO::writeFile(resources + "/miscellaneous.plist",
                           PlistDictionary{{"Tree", PlistDictionary{{"panesTreeFileName", "SummaryTree"}}}});
    }
    void TearDown() override {
        SetNSBundleForPrincipalBundle(nullptr);
        SetNSBundleForLocalizedString(nullptr);
    }

    void useTree(const PlistArray& items, bool expandDependency = false) {
        PlistIO::writeFile(_folder.file("Tree.bundle/Contents/Resources/SummaryTree.plist"),
                           PlistDictionary{{"items", items}});
        auto bundle = Bundle::bundleWithPath(_folder.file("Tree.bundle"));
        SetNSBundleForPrincipalBundle(bundle);
        SetNSBundleForLocalizedString(bundle);
        tree.setOutlineView(&outline, expandDependency);
    }
    std::string path(const std::string& name) const { return _folder.file(name); }

    std::vector<std::string> labels(const std::vector<OutlineViewModel::Row>& rows) {
        std::vector<std::string> shown;
        for (const auto& row : rows) shown.push_back(std::string(2 * row.level, ' ') + tree.objectValueForItem(row.item).label);
        return shown;
    }
    OutlineItem topLevel(std::size_t index) { return tree.child(index, nullptr); }

    std::shared_ptr<PaneManagerStandIn> manager = std::make_shared<PaneManagerStandIn>();
    PrintOptionTreeDataSource tree{manager};
    OutlineViewModel outline;

private:
    OstrinTest::TemporaryDirectory _folder;
};

}  // namespace

// A leading "CurrentSetting" item is the root, a trailing one is left out, one elsewhere
// is an ordinary item.
TEST_F(SummaryTree, CurrentSettingItemIsTheRootOnlyWhenItLeads) {
    const std::vector<std::string> panes{"Paper", "Finishing", "Colour"};
    useTree({group("CurrentSetting", pressPanes()), pane("SpoolOptions")});
    EXPECT_EQ(labels(outline.rows()), panes);
    PlistArray trailing = pressPanes();
    trailing.push_back(group("CurrentSetting", {pane("SpoolOptions")}));
    useTree(trailing);
    EXPECT_EQ(labels(outline.rows()), panes);
    PlistArray middle = pressPanes();
    middle.insert(middle.begin() + 1, group("CurrentSetting", {}));
    useTree(middle);
    EXPECT_EQ(tree.numberOfChildrenOfItem(nullptr), 4u);
}

TEST_F(SummaryTree, AnUpdateOpensExactlyTheBranchesLeadingToDifferingSettings) {
    useTree(pressPanes());
    outline.expandItem(topLevel(0));
    ASSERT_TRUE(outline.isItemExpanded(topLevel(0)));
    tree.updatePrintOption(PlistDictionary{{"StapleMode", "Saddle"}}, true);
    EXPECT_EQ(labels(outline.rows()), (std::vector<std::string>{"Paper", "Finishing", "  Staple", "    Staple mode",
                                                                "    Staple position", "  Punch", "Colour",
                                                                "  Profile"}));
    EXPECT_EQ(tree.currentPrintOption(), (PlistDictionary{{"StapleMode", "Saddle"}}));
}

TEST_F(SummaryTree, WithoutAnyDifferenceEveryBranchCloses) {
    useTree({pane("Page", {group("Trays", {setting("Tray")})}), pane("Color", {setting("Profile")})});
    outline.expandItem(topLevel(0));
    outline.expandItem(tree.child(0, topLevel(0)));
    outline.selectItem(topLevel(1));
    tree.updatePrintOption(std::nullopt, true);
    EXPECT_EQ(labels(outline.rows()), (std::vector<std::string>{"Paper", "Colour"}));
    EXPECT_EQ(outline.selectedItem(), nullptr);
    EXPECT_FALSE(tree.currentPrintOption());
}

// A view keeps the items it was handed until the control tells it they are gone; an
// update without a finish hands out nothing new.
TEST_F(SummaryTree, EveryFinishedUpdateTellsTheViewItsItemsAreNew) {
    useTree(pressPanes());
    const std::uint64_t bound = outline.reloadCount();
    tree.updatePrintOption(PlistDictionary{{"StapleMode", "Saddle"}}, false);
    tree.updateProfilePath(std::nullopt, false);
    EXPECT_EQ(outline.reloadCount(), bound);
    tree.updatePrintOption(std::nullopt, true);
    tree.updateProfilePath(std::string(), true);
    EXPECT_EQ(outline.reloadCount(), bound + 2);
}

// With dependency expansion a node is resolved once until the next update, unless the
// resolution was empty; without it every question asks the manager.
TEST_F(SummaryTree, DependencyExpansionKeepsEachNonEmptyResolutionUntilTheNextUpdate) {
    const auto resolutionsOfTwoQuestions = [this](OutlineItem item) {
        tree.objectValueForItem(item);
        const int afterFirst = manager->resolutions;
        tree.objectValueForItem(item);
        return manager->resolutions - afterFirst;
    };
    useTree({group("Imposition", {setting("Layout")})});
    EXPECT_GT(resolutionsOfTwoQuestions(topLevel(0)), 0);
    EXPECT_FALSE(manager->expandedAsked);
    useTree({group("Imposition", {setting("Layout")})}, true);
    EXPECT_EQ(resolutionsOfTwoQuestions(topLevel(0)), 0);
    EXPECT_TRUE(manager->expandedAsked);
    const int beforeUpdate = manager->resolutions;
    tree.updatePrintOption(std::nullopt, true);
    EXPECT_GT(manager->resolutions, beforeUpdate);
    EXPECT_EQ(resolutionsOfTwoQuestions(topLevel(0)), 0);
    manager->answers["Imposition"] = PlistDictionary();
    tree.updatePrintOption(std::nullopt, true);
    EXPECT_GT(resolutionsOfTwoQuestions(topLevel(0)), 0);
    EXPECT_FALSE(tree.isItemExpandable(topLevel(0)));
}

TEST_F(SummaryTree, TheResolvedNodeGivesChildrenAndLabel) {
    manager->answers["Booklet"] = PlistDictionary{
        {"mainAlias", "Booklet layout"}, {"items", PlistArray{setting("Binding edge"), setting("Cover", true)}}};
    useTree({group("Booklet", {})}, true);
    EXPECT_TRUE(tree.isItemExpandable(topLevel(0)));
    tree.updatePrintOption(std::nullopt, true);
    EXPECT_EQ(labels(outline.rows()),
              (std::vector<std::string>{"Booklet layout", "  Binding edge", "  Cover"}));
}

TEST_F(SummaryTree, LabelsAndIconsFollowTheNodeKindAndAPaneNotLoadedCannotBeSelected) {
    useTree({pane("Finishing", {setting("Punch"), setting("Staple mode", true)}), pane("Unloaded"),
             pane("SpotColorDetailsRGB_"), group("Imposition", {}),
             PlistDictionary{{"items", PlistArray{PlistDictionary{{"plugInName", "Imposition_Booklet"}}}}},
             PlistDictionary{{"items", PlistArray{PlistDictionary{{"plugInName", "Imposition"}}}}}});
    manager->panelNames["SpotColorDetailsRGB_"] = "Spot colour";
    EXPECT_EQ(tree.objectValueForItem(topLevel(0)), (OutlineCell{"Finishing", false, "folder"}));
    EXPECT_EQ(tree.objectValueForItem(tree.child(0, topLevel(0))), (OutlineCell{"Punch", false, "text-x-generic"}));
    EXPECT_EQ(tree.objectValueForItem(tree.child(1, topLevel(0))),
              (OutlineCell{"Staple mode", false, "emblem-important"}));
    EXPECT_EQ(tree.objectValueForItem(topLevel(1)), (OutlineCell{"Unloaded", true, "folder"}));
    EXPECT_EQ(tree.objectValueForItem(topLevel(2)), (OutlineCell{"Spot colour", false, "text-x-generic"}));
    EXPECT_EQ(tree.objectValueForItem(topLevel(3)), (OutlineCell{"Imposition", false, "text-x-generic"}));
    EXPECT_EQ(tree.objectValueForItem(topLevel(4)).label, "  Imposition");
    EXPECT_EQ(tree.objectValueForItem(topLevel(5)).label, "");
    // The grayed pane, which is not loaded, cannot be selected.
    EXPECT_TRUE(outline.selectItem(topLevel(0)));
    EXPECT_FALSE(outline.selectItem(topLevel(1)));
    EXPECT_EQ(outline.selectedItem(), topLevel(0));
    outline.expandItem(topLevel(0));
    EXPECT_TRUE(outline.selectItem(tree.child(0, topLevel(0))));
}

TEST_F(SummaryTree, TheColumnWidensToFitAnIndentedLabel) {
    useTree(pressPanes());
    outline.setLabelMeasure([](const std::string& label) { return 10.0 * static_cast<double>(label.size()); });
    outline.setColumnWidth(60);
    tree.objectValueForItem(topLevel(0));
    EXPECT_EQ(outline.columnWidth(), 60);
    outline.expandItem(topLevel(1));
    tree.objectValueForItem(tree.child(1, topLevel(1)));
    EXPECT_EQ(outline.columnWidth(), 16 + 50);
    tree.objectValueForItem(topLevel(1));
    EXPECT_EQ(outline.columnWidth(), 90);
}

TEST_F(SummaryTree, AnEmptyProfilePathDropsTheProfileAndNoPathKeepsIt) {
    useTree(pressPanes());
    OstrinTest::writeFile(path("Proof.cps"), "A=1\r\nB=2=3\r\n");
    tree.updateProfilePath(path("Proof.cps"), false);
    EXPECT_EQ(tree.profileDictionary(), (PlistDictionary{{"A", "1"}, {"B", "2=3"}}));
    tree.updateProfilePath(std::nullopt, true);
    EXPECT_TRUE(tree.profileDictionary());
    tree.updateProfilePath(std::string(), false);
    EXPECT_FALSE(tree.profileDictionary());
}

TEST(ProductSummaryTree, ShowsEveryPaneOfTheProductUnderItsTitle) {
    auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    SetNSBundleForPrincipalBundle(bundle);
    SetNSBundleForLocalizedString(bundle);
    PreferredLanguages::setFirst("en");
    PanePlugInMgr::setSharedInstance(nullptr);
    ASSERT_TRUE(PanePlugInMgr::sharedInstance()->loadPlugIns());
    OutlineViewModel outline;
    PrintOptionTreeDataSource tree;
    tree.setOutlineView(&outline, true);
    tree.updatePrintOption(PlistDictionary{{"StapleMode", "Saddle"}}, true);
    std::vector<std::string> shown;
    for (const auto& row : outline.rows()) {
        const OutlineCell cell = tree.objectValueForItem(row.item);
        shown.push_back(cell.label);
        EXPECT_FALSE(cell.grayed) << cell.label;
        EXPECT_EQ(cell.iconName, "folder") << cell.label;
        EXPECT_TRUE(outline.selectItem(row.item)) << cell.label;
    }
    EXPECT_EQ(shown, (std::vector<std::string>{"Paper", "Layout", "Finishing", "Output", "Color", "Special Toner",
                                               "Special Toner: Front", "Special Toner: Back", "Secure Printing",
                                               "Job", "Print Position: Front", "Print Position: Back",
                                               "Spool Options"}));
    PanePlugInMgr::setSharedInstance(nullptr);
    SetNSBundleForPrincipalBundle(nullptr);
    SetNSBundleForLocalizedString(nullptr);
}
