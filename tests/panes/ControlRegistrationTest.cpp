#include <gtest/gtest.h>

#include "PaneTestSupport.h"
#include "core/Bundle.h"
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
