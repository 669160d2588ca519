#include <gtest/gtest.h>

#include "PanelTestSupport.h"
#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PanelButton.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNUI.h"

using namespace ComQuorvantVelmar_Plugin;
using PanelTest::runWindowsWith;

namespace {

std::shared_ptr<Bundle> productBundle() { return Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR); }
std::shared_ptr<Bundle> tabbedBundle() { return Bundle::bundleWithPath(OstrinTest::dataPath("pde/TabbedTraySheet.bundle")); }

std::vector<std::string> listedKeys(const PdeAutomaticPaperTraySelection& sheet) {
    std::vector<std::string> keys;
    for (const auto& [key, control] : sheet.getListVORNUI()) keys.push_back(key);
    return keys;
}

struct Sheet {
    explicit Sheet(const std::shared_ptr<Bundle>& bundle, bool bypass) : manager(bundle) {
        sheet.initializePanel(bundle, bypass, manager);
    }
    ~Sheet() { runWindowsWith(nullptr); }
    PanePlugInMgr manager;
    PdeAutomaticPaperTraySelection sheet;
};

// Records the names posted while it lives.
struct PostedNames {
    PostedNames(std::initializer_list<const char*> names) {
        for (const char* name : names)
            NotifyUnit::addObserver(this, [this](const Notification& posted) { seen.push_back(posted.name); }, name);
    }
    ~PostedNames() { NotifyUnit::removeObserver(this); }
    std::vector<std::string> seen;
};

}  // namespace

// The plain paper type lists its described settings; the tabbed paper type and the weight
// value take the places of their plain counterparts. The sheet is half as wide as its layout.
TEST(TraySheet, AutomaticSheetListsTheDescribedSettingsOfItsPaperType) {
    Sheet automatic(productBundle(), false);
    EXPECT_EQ(listedKeys(automatic.sheet),
              (std::vector<std::string>{"MediaTypeCoatingMaterial", "MediaTypeDrilled", "MediaTypeGlossFine",
                                        "MediaTypePreprinted", "MediaTypeSequence", "MediaTypeWeight", "PaperColor",
                                        "PaperColorCustomName", "PaperTypeCustomName", "PaperTypeD"}));
    EXPECT_EQ(automatic.sheet.getListVORNUI().at("PaperTypeD")->mainKeyword(), "PaperTypeD");
    EXPECT_EQ(automatic.sheet.windowTitle(), "Automatic Tray Selection");
    EXPECT_EQ(automatic.sheet.windowFrame().width, VORNUI::defaultWidth + 24);
    EXPECT_EQ(automatic.sheet.separator()->frame().width, VORNUI::defaultWidth);

    Sheet tabbed(tabbedBundle(), false);
    EXPECT_EQ(listedKeys(tabbed.sheet), (std::vector<std::string>{"MediaTypeWeightValue", "PaperColor",
                                                                  "PaperColorCustomName", "PaperType_MediaTypeTabbed"}));
}

TEST(TraySheet, BypassSheetListsTheAutomaticWeightControlUnderTheBypassWeightKey) {
    Sheet bypass(productBundle(), true);
    const auto& list = bypass.sheet.getListVORNUI();
    ASSERT_EQ(listedKeys(bypass.sheet).size(), 4u);
    EXPECT_EQ(list.at("PaperColorBypass")->mainKeyword(), "PaperColorBypass");
    // The automatic weight control, never built in the bypass sheet: no keyword, no value.
    EXPECT_EQ(list.at("MediaTypeWeightBypass")->mainKeyword(), "");
    EXPECT_EQ(list.at("MediaTypeWeightBypass")->getStringValue(), std::nullopt);
    EXPECT_EQ(bypass.sheet.windowTitle(), "Bypass Tray Settings");
}

TEST(TraySheet, ShowingFiresThePaperTypeOnceAndEnablesTheCustomColourOnlyForCustomPaper) {
    Sheet plain(productBundle(), false);
    Sheet tabbed(tabbedBundle(), false);
    PostedNames posted({"PaperTypeD", "PaperType_MediaTypeTabbed"});
    plain.sheet.getListVORNUI().at("PaperColorCustomName")->setEnabled(true);
    plain.sheet.modalWindow(nullptr);
    EXPECT_EQ(posted.seen, (std::vector<std::string>{"PaperTypeD"}));
    EXPECT_FALSE(plain.sheet.getListVORNUI().at("PaperColorCustomName")->isEnabled());

    tabbed.sheet.getListVORNUI().at("PaperColorCustomName")->setEnabled(false);
    tabbed.sheet.modalWindow(nullptr);
    EXPECT_EQ(posted.seen, (std::vector<std::string>{"PaperTypeD", "PaperType_MediaTypeTabbed"}));
    EXPECT_TRUE(tabbed.sheet.getListVORNUI().at("PaperColorCustomName")->isEnabled());
}

TEST(TraySheet, TypedTextsAlwaysHoldTheTabSequence) {
    Sheet plain(productBundle(), false);
    plain.sheet.getListVORNUI().at("MediaTypeSequence")->setStringValue("4");
    const PlistDictionary texts = plain.sheet.getTextFieldStringDictionary();
    EXPECT_EQ(texts.keys(), (std::vector<std::string>{"PaperTypeCustomName", "MediaTypeSequence", "PaperColorCustomName",
                                                      "MediaTypePreprinted", "MediaTypeCoatingMaterial",
                                                      "MediaTypeDrilled"}));
    EXPECT_EQ(texts.stringFor("MediaTypeSequence"), "4");
    EXPECT_EQ(texts.stringFor("PaperTypeCustomName"), "");

    Sheet tabbed(tabbedBundle(), false);
    const PlistDictionary tabbedTexts = tabbed.sheet.getTextFieldStringDictionary();
    ASSERT_TRUE(tabbedTexts.contains("MediaTypeSequence"));
    EXPECT_TRUE(tabbedTexts.find("MediaTypeSequence")->isNull());

    Sheet bypass(productBundle(), true);
    EXPECT_EQ(bypass.sheet.getTextFieldStringDictionary().keys(), (std::vector<std::string>{"MediaTypeSequenceBypass"}));
}

TEST(TraySheet, CloseTellsThePanelHidesTheSheetAndEndsTheRun) {
    Sheet plain(productBundle(), false);
    int ended = 0;
    bool runningWhenTold = false;
    runWindowsWith([&](ModalWindow&) {
        EXPECT_TRUE(plain.sheet.isVisible());
        plain.sheet.closeButton()->performClick();
    });
    plain.sheet.modalWindow([&] {
        ++ended;
        runningWhenTold = plain.sheet.isRunning();
    });
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(runningWhenTold);
    EXPECT_FALSE(plain.sheet.isVisible());
    EXPECT_FALSE(plain.sheet.isRunning());
}

TEST(TraySheet, CustomPaperTypesJoinThePaperTypePopUpAndTheChoiceStays) {
    Sheet plain(productBundle(), false);
    auto paperType = plain.sheet.getListVORNUI().at("PaperTypeD");
    paperType->setStringValue("Coated");
    const std::size_t before = paperType->popupItems().size();
    plain.sheet.setPaperTypeCustomList(PlistValue(PlistArray{PlistValue(PlistArray{"Gloss 250", "1-Gloss250"})}));
    EXPECT_EQ(paperType->popupItems().size(), before + 1);
    EXPECT_EQ(paperType->popupItems().back().choice, "1-Gloss250");
    EXPECT_EQ(paperType->getStringValue(), "Coated");
}
