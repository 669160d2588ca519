#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "panes/PrinterDataPDEObject.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace PaneTest;

namespace {

const std::vector<std::string> productPanes = {
    "Color", "ExtraToner", "ExtraTonerSide+Front", "ExtraTonerSide+Back", "Finishing", "Job", "Layout",
    "Output", "Page", "PrintPosition+Front", "PrintPosition+Back", "SecurePrint", "SpoolOptions"};

// The main keywords of the UI description's pane sections (the panel and the tray sheets
// are not panes), read from the section marks of the file.
std::set<std::string> paneSectionKeys() {
    const std::string text = OstrinTest::readFile(productBundlePath() + "/Contents/Resources/OstrinFlowUI.plist");
    std::set<std::string> keys;
    bool inPane = false;
    std::size_t position = 0;
    while ((position = text.find("\n\t<", position)) != std::string::npos) {
        position += 3;
        if (text.compare(position, 9, "!-- Pane:") == 0) inPane = true;
        if (text.compare(position, 10, "!-- Panel:") == 0 || text.compare(position, 10, "!-- Sheet:") == 0) inPane = false;
        if (inPane && text.compare(position, 4, "key>") == 0) {
            const std::size_t start = position + 4;
            keys.insert(text.substr(start, text.find('<', start) - start));
        }
    }
    return keys;
}

}  // namespace

TEST(ProductPanes, EveryPaneLoadsAndTheTwoSidedOnesOncePerSide) {
    ManagerScope scope(productBundlePath());
    EXPECT_EQ(scope.paneNames(), productPanes);
    EXPECT_EQ(scope.manager().roleName(scope.pane("PrintPosition+Back").get()), std::optional<std::string>("Back"));
}

TEST(ProductPanes, TheDefaultsCoverEverySettingOfThePanesOnce) {
    ManagerScope scope(productBundlePath());
    const PlistDictionary defaults = scope.manager().defaultSettings();
    const std::vector<std::string> keys = defaults.keys();
    const std::set<std::string> distinct(keys.begin(), keys.end());
    EXPECT_EQ(distinct, paneSectionKeys());
    EXPECT_EQ(keys.size(), 169u);
    for (const auto& [keyword, controls] : scope.manager().vornMgr().getControlsDictionary())
        EXPECT_EQ(controls.size(), 1u) << keyword;
    EXPECT_EQ(defaults.stringFor("ImpositionMode_ImpositionCustomMode"), std::optional<std::string>("Off"));
    EXPECT_EQ(defaults.stringFor("SpTonerPageRangeModeBack"), std::optional<std::string>("All"));
    EXPECT_EQ(defaults.stringFor("PrintPositionFrontWidthMag"), std::optional<std::string>("100.0"));
    EXPECT_EQ(defaults.stringFor("RenderingProfile"), std::optional<std::string>("True"));
}

TEST(ProductPanes, TitlesComeFromEachBundlesOwnCatalogues) {
    {
        Language german("de");
        ManagerScope scope(productBundlePath());
        EXPECT_EQ(scope.manager().panelNameOfBundleName("ExtraTonerSide+Back"),
                  std::optional<std::string>("Sondertoner: Rückseite"));
        EXPECT_EQ(scope.manager().panelNameOfBundleName("Finishing"), std::optional<std::string>("Endverarbeitung"));
    }
    {
        Language japanese("ja");
        ManagerScope scope(productBundlePath());
        EXPECT_EQ(scope.manager().panelNameOfBundleName("Page"), std::optional<std::string>("用紙"));
        EXPECT_EQ(scope.manager().panelNameOfBundleName("PrintPosition+Front"), std::optional<std::string>("印刷位置：表面"));
    }
    ManagerScope scope(productBundlePath());
    EXPECT_EQ(scope.manager().panelNameOfBundleName("SpoolOptions"), std::optional<std::string>("Spool Options"));
}

TEST(ProductPanes, PanelsAreViewTreesOfSettingsControls) {
    Language german("de");
    ManagerScope scope(productBundlePath());
    auto view = scope.manager().panelViewOfBundleName("Color");
    ASSERT_TRUE(view && view->subviews().size() == 1);
    auto* tabs = dynamic_cast<TabViewNode*>(view->subviews()[0].get());
    ASSERT_TRUE(tabs);
    ASSERT_EQ(tabs->tabs().size(), 5u);
    EXPECT_EQ(tabs->tabs()[0].label, "Farbkorrektur");
    EXPECT_EQ(tabs->tabs()[0].identifier, "ColorCorrection");
    const auto& first = tabs->tabs()[0].view->subviews();
    ASSERT_FALSE(first.empty());
    auto* control = dynamic_cast<VORNUI*>(first[0].get());
    ASSERT_TRUE(control);
    EXPECT_EQ(control->mainKeyword(), "RgbColorCorrection");
    EXPECT_EQ(control->toolTip(), "");
    EXPECT_GT(first[1]->frame().y, first[0]->frame().y);
    EXPECT_GT(view->frame().height, tabs->frame().y);
}

TEST(ProductPanes, ThePanesListThePrintersResourcesBeforeTheyAreShown) {
    ManagerScope scope(productBundlePath());
    PrinterDataPDEObject printerData(
        PpdFileExt::initWithContentsOfFile(productBundlePath() + "/Contents/Resources/OstrinFlow.ppd"));
    scope.manager().setPDEObject(&printerData);
    PanePlugInMgr& manager = scope.manager();
    manager.setStringValue("Retired.pdf", "ImpositionTemplate");
    manager.willShowAllBundle();

    // The imposition pane's own code: only the trays the printer reports, around them the
    // automatic choice and the job's tray, a stock and the system setting.
    const auto trays = popupChoices(*scope.control("Layout", "Imposition1stTray"));
    EXPECT_EQ(trays.front(), "TrayAuto");
    EXPECT_EQ(std::vector<std::string>(trays.end() - 3, trays.end()),
              (std::vector<std::string>{"TrayJobSameTray", "TrayStk", "TraySystemSetting"}));
    EXPECT_LT(trays.size(), 18u);
    const auto templates = popupChoices(*scope.control("Layout", "ImpositionTemplate"));
    ASSERT_GT(templates.size(), 1u);
    EXPECT_EQ(templates[0], "");
    // A template the printer no longer lists stays chosen.
    EXPECT_EQ(manager.gatherPrintOptionValues(nullptr, std::nullopt, false, false, false)->stringFor("ImpositionTemplate"),
              std::optional<std::string>("Retired.pdf"));
    auto listed = manager.getImpositionFileList();
    EXPECT_EQ(templates[1], (*listed->array())[0].array()->front().stringOr(""));

    EXPECT_GT(popupChoices(*scope.control("Color", "RenderingProfileName")).size(), 1u);
}
