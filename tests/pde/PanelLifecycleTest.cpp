#include <gtest/gtest.h>

#include "PanelTestSupport.h"
#include "core/Bundle.h"
#include "core/ClassRegistry.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PrintSettings.h"
#include "pde/TarnPDEPlugIn.h"
#include "settings_ui/VORNUI.h"

using namespace PanelTest;

namespace {

std::vector<std::string> choicesOf(const VORNUI& control) {
    std::vector<std::string> choices;
    for (const auto& item : control.popupItems()) choices.push_back(item.choice);
    return choices;
}

}  // namespace

TEST(PanelEntry, ThePrincipalClassAnswersOnePanelForThePrintDialogPanelTypeOnly) {
    PanelScope scope;
    auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    auto entry = ClassRegistry::sharedInstance().createAs<TarnPDEPlugIn>(bundle->principalClassName());
    ASSERT_TRUE(entry);

    ASSERT_TRUE(entry->initWithBundle(bundle));
    EXPECT_EQ(entry->PDEPanelsForType("com.example.other", scope.host()), std::nullopt);

    ASSERT_TRUE(entry->initWithBundle(bundle));
    auto panels = entry->PDEPanelsForType("BDB091F4-E57F-11D3-B5CC-0050E4603277", scope.host());
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 1u);
    EXPECT_EQ(panels->front()->panelName(), "Ostrin Flow");
    EXPECT_EQ(panels->front()->panelKind(), "com.quorvant.velmar.print.pde.main");
    // The bundle was let go with the first answer: a second one makes a panel without it.
    auto again = entry->PDEPanelsForType("BDB091F4-E57F-11D3-B5CC-0050E4603277", scope.host());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->front()->supportedPPDOptionKeys(), std::nullopt);
}

TEST(PanelEntry, ThePrintServerHostComesFromTheQueuesDeviceUri) {
    PanelScope scope;
    InMemoryPdeHost host(InMemoryPdeHost::Flavour::WithPpdChangeHook, openSamplePpd());
    host.setDeviceUri("socket://v1.abc+def+x:9100");
    TarnPDEByCocoa panel(host, Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    EXPECT_EQ(scope.manager().getHostName(), "abc%def+x");
}

TEST(PanelEntry, ThePrintersDataIsReadFromTheHostsPpd) {
    PanelScope scope;
    const auto feeders = scope.panel().sendCommand("FeederInfoList");
    ASSERT_TRUE(feeders && feeders->array());
    EXPECT_FALSE(feeders->array()->empty());
    EXPECT_EQ(scope.panel().sendCommand("NoSuchList"), std::nullopt);
    EXPECT_EQ(scope.panel().ppdxReadData("NoSuchList"), std::nullopt);
    EXPECT_TRUE(scope.panel().ppdxReadData("FeederInfoList"));
}

TEST(PanelEntry, BuildingShowsTheTraysAndFinishingThePrinterReports) {
    PanelScope scope;
    scope.panel()._buildUi();
    ASSERT_TRUE(scope.panel().isIntializedUi());
    const auto trays = choicesOf(*scope.panel().panelControl("QVInputSlot"));
    ASSERT_FALSE(trays.empty());
    EXPECT_EQ(trays.front(), "AutoSelect");
    EXPECT_FALSE(scope.panel().panelControl("OffsetMode")->isHidden());
    const auto outputTrays = choicesOf(*scope.panel().panelControl("OutputTray"));
    EXPECT_FALSE(outputTrays.empty());
    EXPECT_EQ(scope.manager().getStringValueFromKey("OutputTray"), "Auto");
}

TEST(PanelEntry, SummaryOfAPanelNeverShownBuildsItAndSavesFirst) {
    PanelScope scope;
    ASSERT_TRUE(scope.host().printSettings()->values().empty());
    const auto summary = scope.panel().summaryInfo();
    EXPECT_TRUE(scope.panel().isIntializedUi());
    EXPECT_EQ(scope.setting("ColorMode"), "Color");
    ASSERT_TRUE(summary);
    EXPECT_FALSE(summary->empty());
}

TEST(PanelEntry, DefaultsCoverThePanelsOwnSettingsAndTrayBeforeTheyAreBuilt) {
    PanelScope scope;
    const PlistDictionary& defaults = scope.panel().defaultPrintOption();
    const PlistDictionary expected{{"DuplexMode", "None"},       {"QVInputSlot", "AutoSelect"},
                                   {"PaperTypeD", "Auto"},       {"PaperTypeCustomName", ""},
                                   {"PaperColorBypass", "Auto"}, {"PagePrintOnCenter", false}};
    for (const auto& [key, value] : expected) EXPECT_TRUE(defaults.find(key) && *defaults.find(key) == value) << key;
    EXPECT_FALSE(defaults.contains("MediaTypeWeightBypass"));
    EXPECT_EQ(scope.panel().printOption(), defaults);
}
