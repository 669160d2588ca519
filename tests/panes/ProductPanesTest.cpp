#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "PaneTestSupport.h"
#include "TestSupport.h"
#include "panes/PlainButton.h"
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

TEST(Summary, NamesAndValuesComeFromTheSettingsAndThePpd) {
    ManagerScope scope(productBundlePath());
    const PlistDictionary printOption = {
        {"SecPrint", "True"},          {"SecPrintPassword", "s3cret"}, {"CreasePosition2", "50.0"},
        {"SpotColorCorrection", true}, {"Duplex", "DuplexTumble"},     {"ImpositionTemplate", "Booklet A4.pdf"},
        {"NotAnything", "x"},          {"MailAddress", ""},            {"Ignored", PlistValue()},
    };
    auto summary = scope.manager().summaryInfoFromPrintOption(&printOption);
    ASSERT_TRUE(summary);
    EXPECT_EQ(*summary, (PlistDictionary{{"Secure Print", "On"},
                                         {"Secure Print Password", "********"},
                                         {"Crease 2 Position", "50.0 mm"},
                                         {"Spot Color Correction", "On"},
                                         {"2-Sided Printing", "Short-Edge Binding"},
                                         {"Imposition Template", "Booklet A4.pdf"},
                                         {"Mail Address", ""}}));
    EXPECT_EQ(scope.manager().summaryInfoFromPrintOption(nullptr), std::nullopt);
}

TEST(Summary, TextsFollowTheLanguage) {
    Language german("de");
    ManagerScope scope(productBundlePath());
    const PlistDictionary printOption = {{"SamplePrintMode", "Hold"}, {"QZMediaType", "Transparency"}};
    auto summary = scope.manager().summaryInfoFromPrintOption(&printOption);
    ASSERT_TRUE(summary);
    ASSERT_EQ(summary->size(), 2u);
    EXPECT_EQ(summary->begin()->first, "Ausgabeart");
    EXPECT_EQ(summary->stringFor("Media Type"), std::optional<std::string>("Folie"));
}

TEST(PpdAliases, ChoicesAndTitlesFromThePpd) {
    ManagerScope scope(productBundlePath(), false);
    PanePlugInMgr& manager = scope.manager();
    EXPECT_TRUE(manager.isExistsInPpd("QZMediaType", "Labels"));
    EXPECT_FALSE(manager.isExistsInPpd("QZMediaType", "Cardboard"));
    EXPECT_FALSE(manager.isExistsInPpd("NoOption", "Labels"));
    std::string mainAlias;
    std::string optionAlias;
    ASSERT_TRUE(manager.getAlias(mainAlias, optionAlias, "Duplex", "DuplexNoTumble"));
    EXPECT_EQ(mainAlias, "2-Sided Printing");
    EXPECT_EQ(optionAlias, "Long-Edge Binding");
    EXPECT_FALSE(manager.getAlias(mainAlias, optionAlias, "NoOption", "x"));

    PlainPopUpButton popup;
    PlainButton label;
    ASSERT_TRUE(manager._buildControl(&popup, "DuplexMode", &label));
    ASSERT_EQ(popup.items().size(), 3u);
    EXPECT_EQ(popup.items()[1].title, "2-Sided, Flip on Long Edge");
    EXPECT_EQ(popup.items()[1].representedObject.stringFor("optionKeyword"), std::optional<std::string>("DuplexNoTumble"));
    EXPECT_EQ(label.title(), "2-Sided Print:");
    manager.addMenuItem(popup, "DuplexMode", std::string("Custom"), "Custom");
    EXPECT_EQ(popup.items().back().title, "Custom");
    EXPECT_FALSE(manager._buildControl(&popup, "NoOption", &label));
    EXPECT_EQ(popup.items().size(), 4u);
}

TEST(PpdAliases, TheQueuesPpdReplacesTheBundledOne) {
    ManagerScope scope(productBundlePath(), false);
    auto fixturePpd = PpdFileExt::initWithContentsOfFile(std::string(OSTRIN_TEST_DATA_DIR) + "/ppd/options.ppd");
    ASSERT_TRUE(fixturePpd);
    scope.manager().setPpdFile(std::move(fixturePpd));
    EXPECT_FALSE(scope.manager().isExistsInPpd("QZMediaType", "Labels"));
    // A rebuild for a PPD that cannot be opened fails, and the bundled PPD serves again.
    EXPECT_FALSE(scope.manager().rebuildPanes("NoSuch.ppd", "PanesTree"));
    EXPECT_TRUE(scope.manager().isExistsInPpd("QZMediaType", "Labels"));
}

TEST(DuplexQuestion, DuplexStandsAndTheMediaTypeGivesWay) {
    ManagerScope scope(productBundlePath(), false);
    auto conflict = scope.manager().resloveConflictAlertDuplex(std::string("DuplexNoTumble"), std::string("Transparency"), 1);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->mainKeyword, "QZMediaType");
    EXPECT_EQ(conflict->defaultValue, "Plain");
    EXPECT_EQ(conflict->anotherMainKeyword, std::optional<std::string>("PaperTypeD"));
    EXPECT_EQ(conflict->anotherDefaultValue, std::optional<std::string>("Plain"));
    EXPECT_EQ(conflict->alert.messageText, "The media type \"Transparency\" cannot be printed on both sides.");
    EXPECT_EQ(conflict->alert.informativeText, "Do you want to change the media type to \"Plain\"?\n");
    EXPECT_EQ(conflict->alert.buttons, (std::vector<std::string>{"Change Setting"}));
    // Only the described pairs conflict.
    PanePlugInMgr& manager = scope.manager();
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("None"), std::string("Transparency"), 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("DuplexNoTumble"), std::string("Plain"), 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::nullopt, std::string("Labels"), 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("DuplexTumble"), std::nullopt, 1));
    EXPECT_FALSE(manager.resloveConflictAlertDuplex(std::string("SimplexTumble"), std::string("Labels"), 1));
}

TEST(DuplexQuestion, MediaTypeStandsAndTheDuplexSettingGivesWay) {
    Language german("de");
    ManagerScope scope(productBundlePath(), false);
    auto conflict = scope.manager().resloveConflictAlertDuplex(std::string("DuplexTumble"), std::string("Labels"), 2);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->mainKeyword, "DuplexMode");
    EXPECT_EQ(conflict->defaultValue, "None");
    EXPECT_EQ(conflict->anotherMainKeyword, std::optional<std::string>("Duplex"));
    EXPECT_EQ(conflict->anotherDefaultValue, std::optional<std::string>("None"));
    EXPECT_EQ(conflict->alert.informativeText, "Möchten Sie den beidseitigen Druck auf „1-Sided“ ändern?\n");
    EXPECT_NE(conflict->alert.messageText.find("„Labels“"), std::string::npos);
}
