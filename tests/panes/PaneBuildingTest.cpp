#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "panes/PaneLayout.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

std::shared_ptr<VORNUI> markedControl(const std::string& key) {
    auto control = std::make_shared<VORNUI>();
    control->setToolTip(key);
    return control;
}

// Records every post of the names it is given, in order.
class PostedNames {
public:
    explicit PostedNames(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            NotifyUnit::addObserver(this, [this](const Notification& posted) { received.push_back(posted.name); }, name);
    }
    ~PostedNames() { NotifyUnit::removeObserver(this); }
    std::vector<std::string> received;
};

const PlistDictionary& fixtureDescriptions(PanePlugInMgr& manager) { return *manager.uiDescriptions(); }

PlistDictionary control(const std::string& key) { return {{"class", "VORNUI"}, {"key", key}}; }

std::string upper(const std::string& text) {
    std::string result = text;
    for (char& character : result) character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return result;
}

}  // namespace

TEST(ControlRegistration, CollectsControlsDirectlyAndOnTabPagesOnly) {
    auto root = std::make_shared<ViewNode>();
    auto first = markedControl("Loose");
    root->addSubview(first);
    auto group = std::make_shared<ViewNode>();
    group->addSubview(markedControl("Grouped"));
    root->addSubview(group);
    auto tabs = std::make_shared<TabViewNode>();
    auto page = std::make_shared<ViewNode>();
    auto onPage = markedControl("Deep");
    page->addSubview(onPage);
    tabs->addTab({"Deep", "Deep", page});
    tabs->addTab({"Empty", "Empty", std::make_shared<ViewNode>()});
    root->addSubview(tabs);
    auto last = markedControl("SideModeFront");
    root->addSubview(last);
    EXPECT_EQ(PanePlugInMgr::getVORNUIControls(root.get()), (PanePlugInMgr::ControlList{first, onPage, last}));
    EXPECT_TRUE(PanePlugInMgr::getVORNUIControls(nullptr).empty());
}

TEST(ControlRegistration, SetupGivesEachControlItsDescriptionAndClearsTheKey) {
    ManagerScope scope(fixtureBundlePath(), false);
    auto bundle = Bundle::bundleWithPath(fixtureBundlePath());
    PanePlugInMgr::ControlList controls = {markedControl("Deep"), markedControl(""), markedControl("(null)"),
                                           markedControl("Unknown")};
    PanePlugInMgr::ControlDictionary output;
    ASSERT_TRUE(PanePlugInMgr::setupVORNUIControls(&controls, &fixtureDescriptions(scope.manager()), &output, bundle));
    EXPECT_EQ(controls[0]->mainKeyword(), "Deep");
    EXPECT_EQ(controls[0]->toolTip(), "");
    ASSERT_EQ(controls[0]->childControls().size(), 1u);
    EXPECT_EQ(controls[0]->childControls()[0]->mainKeyword(), "DeepName");
    EXPECT_EQ(controls[3]->mainKeyword(), "");  // no description: an empty control
    EXPECT_EQ(controls[3]->toolTip(), "");
    EXPECT_EQ(controls[2]->toolTip(), "(null)");  // skipped
    EXPECT_EQ(output.size(), 2u);
    EXPECT_EQ(output["Deep"], controls[0]);
    EXPECT_EQ(output["Unknown"], controls[3]);
}

TEST(ControlRegistration, SetupRefusesMissingArgumentsAndFindsTheFirstControlOfAKeyword) {
    ManagerScope scope(fixtureBundlePath(), false);
    PanePlugInMgr::ControlList controls = {markedControl("Loose"), markedControl("SideModeFront"),
                                           markedControl("Loose")};
    PanePlugInMgr::ControlDictionary output;
    const PlistDictionary& descriptions = fixtureDescriptions(scope.manager());
    EXPECT_FALSE(PanePlugInMgr::setupVORNUIControls(nullptr, &descriptions, &output, nullptr));
    EXPECT_FALSE(PanePlugInMgr::setupVORNUIControls(&controls, nullptr, &output, nullptr));
    EXPECT_FALSE(PanePlugInMgr::setupVORNUIControls(&controls, &descriptions, nullptr, nullptr));
    EXPECT_EQ(controls[0]->toolTip(), "Loose");
    PanePlugInMgr::setupVORNUIControls(&controls, &descriptions, &output, nullptr);
    EXPECT_EQ(PanePlugInMgr::getVORNUIOneControl(&controls, "Loose"), controls[0]);
    EXPECT_EQ(PanePlugInMgr::getVORNUIOneControl(&controls, "SideModeFront"), controls[1]);
    EXPECT_EQ(PanePlugInMgr::getVORNUIOneControl(&controls, "Missing"), nullptr);
    EXPECT_EQ(PanePlugInMgr::getVORNUIOneControl(nullptr, "Loose"), nullptr);
}

TEST(ControlRegistration, RegisteringAnnouncesTheControlThenItsChildren) {
    ManagerScope scope(fixtureBundlePath(), false);
    PanePlugInMgr::ControlList controls = {markedControl("Deep")};
    PanePlugInMgr::ControlDictionary output;
    PanePlugInMgr::setupVORNUIControls(&controls, &fixtureDescriptions(scope.manager()), &output,
                                       Bundle::bundleWithPath(fixtureBundlePath()));
    PostedNames posted({"Deep", "DeepName"});
    scope.manager().setVornUiToVornMgr(controls[0]);
    EXPECT_EQ(posted.received, (std::vector<std::string>{"Deep", "DeepName"}));
    ASSERT_TRUE(scope.manager().vornMgr().controlsOf("DeepName"));
    scope.manager().setStringValue("Proof", "DeepName");
    EXPECT_EQ(controls[0]->childControls()[0]->getStringValue(), std::optional<std::string>("Proof"));
}

TEST(ControlRegistration, PanesRegisterTheirControlsWhileTheyLoad) {
    PostedNames posted({"Deep", "DeepName", "Loose", "Grouped"});
    ManagerScope scope(fixtureBundlePath());
    // Each setting announces its default as it is built (a child before its parent), then
    // the pane's registration announces the setting and after it its children.
    EXPECT_EQ(posted.received, (std::vector<std::string>{"DeepName", "Deep", "Deep", "DeepName", "Loose", "Loose"}));
    EXPECT_FALSE(scope.manager().vornMgr().controlsOf("Grouped"));  // inside a plain group
}

TEST(PaneLayout, BuildsTheTreeWithTheRoleInKeysLabelsAndIdentifiers) {
    const PlistDictionary page = {{"subviews", PlistArray{control("Density%@")}}};
    const PlistDictionary description = {
        {"subviews", PlistArray{control("Mode%@"),
                                PlistDictionary{{"class", "TabView"},
                                                {"tabs", PlistArray{PlistDictionary{{"label", "Side %@"},
                                                                                    {"identifier", "Tab%@"},
                                                                                    {"view", page}},
                                                                    PlistDictionary{{"label", "No view"}}}}},
                                PlistDictionary{{"class", "View"}, {"hidden", true}}, PlistValue("not a view")}}};
    auto root = PaneLayout::viewOfDescription(PlistValue(description), std::string("Back"), upper);
    ASSERT_TRUE(root);
    ASSERT_EQ(root->subviews().size(), 3u);
    EXPECT_EQ(root->subviews()[0]->className(), "VORNUI");
    EXPECT_EQ(root->subviews()[0]->toolTip(), "ModeBack");
    auto* tabs = dynamic_cast<TabViewNode*>(root->subviews()[1].get());
    ASSERT_TRUE(tabs);
    ASSERT_EQ(tabs->tabs().size(), 1u);
    EXPECT_EQ(tabs->tabs()[0].label, "SIDE BACK");
    EXPECT_EQ(tabs->tabs()[0].identifier, "TabBack");
    EXPECT_EQ(tabs->tabs()[0].view->subviews()[0]->toolTip(), "DensityBack");
    EXPECT_TRUE(root->subviews()[2]->isHiddenView());
    EXPECT_EQ(PaneLayout::withRole("Side %@ of %@", std::nullopt), "Side  of ");
    EXPECT_FALSE(PaneLayout::viewOfDescription(PlistValue("View"), std::nullopt, upper));
}

TEST(PaneLayout, StacksViewsTopToBottom) {
    const PlistDictionary description = {
        {"subviews", PlistArray{PlistDictionary{{"subviews", PlistArray{PlistDictionary{}}}}, PlistDictionary{}}}};
    auto root = PaneLayout::viewOfDescription(PlistValue(description), std::nullopt, upper);
    PaneLayout::layOut(*root);
    const auto& first = root->subviews()[0]->frame();
    const auto& second = root->subviews()[1]->frame();
    EXPECT_EQ(first.x, second.x);
    EXPECT_GT(second.y, first.y + first.height - 1);
    EXPECT_GT(first.height, second.height);
    EXPECT_EQ(root->frame().width, VORNUI::defaultWidth + 24);
    EXPECT_GT(root->frame().height, second.y + second.height);
}

TEST(PaneLayout, TreesNestedTooDeeplyAreCutOff) {
    DiagnosticLines diagnostics;
    PlistValue nested = PlistDictionary{{"class", "VORNUI"}, {"key", "Deepest"}};
    for (int level = 0; level < 40; ++level) nested = PlistDictionary{{"subviews", PlistArray{nested}}};
    auto root = PaneLayout::viewOfDescription(nested, std::nullopt, upper);
    ASSERT_TRUE(root);
    int depth = 0;
    for (const ViewNode* view = root.get(); !view->subviews().empty(); view = view->subviews()[0].get()) ++depth;
    EXPECT_EQ(depth, 16);
    EXPECT_TRUE(diagnostics.contains("nested too deeply"));
}
