#include <gtest/gtest.h>

#include "PanelTestSupport.h"
#include "panes/PanePlugInMgr.h"
#include "pde/DetailedSettingsWinController.h"
#include "settings_ui/TabViewNode.h"

using namespace PanelTest;

namespace {

DetailedSettingsWinController& window() { return DetailedSettingsWinController::sharedInstance(); }

}  // namespace

// The panes' options join the caller's values, which win; with no panes loaded nothing changes.
TEST(DetailedSettings, ReformatAddsThePanesOptionsAndKeepsTheCallersValues) {
    PanelScope scope;
    PlistDictionary printOption{{"ColorMode", "Grayscale"}, {"QVNote", "mine"}};
    window().reformatPrintOption(printOption);
    EXPECT_EQ(printOption.stringFor("ColorMode"), "Grayscale");
    EXPECT_EQ(printOption.stringFor("QVNote"), "mine");
    EXPECT_EQ(printOption.stringFor("MailAddress"), "");
    EXPECT_EQ(printOption.size(), scope.manager().defaultSettings().size() + 2);

    PanePlugInMgr::setSharedInstance(std::make_shared<PanePlugInMgr>());
    PlistDictionary alone{{"ColorMode", "Grayscale"}};
    window().reformatPrintOption(alone);
    EXPECT_EQ(alone, (PlistDictionary{{"ColorMode", "Grayscale"}}));
}

TEST(DetailedSettings, OkWithInconsistentSettingsKeepsTheWindowOpenWithTheGatheredValues) {
    PanelScope scope({}, {AlertFirstButtonReturn});
    int runs = 0;
    PlistDictionary seenOnSecondRun;
    PlistDictionary printOption{{"QVNote", "mine"}};
    runWindowsWith([&](ModalWindow&) {
        ++runs;
        if (runs == 1) {
            scope.userChanges("MailNotifyJobEnd", "True");  // without a mail address
            window().okButton();
        } else {
            seenOnSecondRun = printOption;
            window().cancelButton();
        }
    });

    EXPECT_EQ(window().showAsModalDialog(printOption), 0);
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(seenOnSecondRun.stringFor("MailNotifyJobEnd"), "True");
    EXPECT_FALSE(seenOnSecondRun.contains("QVNote"));
    EXPECT_EQ(scope.asked().size(), 1u);
    EXPECT_FALSE(window().isVisible());
}

TEST(DetailedSettings, OkWithConsistentSettingsAnswersOneAndCommittedEditsOnly) {
    PanelScope scope;
    int runs = 0;
    bool committed = false;
    window().setEditingFinisher([&] { return std::exchange(committed, true); });
    runWindowsWith([&](ModalWindow&) {
        ++runs;
        window().okButton();
    });
    PlistDictionary printOption;
    EXPECT_EQ(window().showAsModalDialog(printOption), 1);
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(printOption, scope.manager().defaultSettings());
    window().setEditingFinisher(nullptr);
}

TEST(DetailedSettings, RevertShowsTheDefaultsInEveryPane) {
    PanelScope scope;
    scope.userChanges("SamplePrintMode", "Hold");
    ASSERT_EQ(scope.manager().getStringValueFromKey("SamplePrintMode"), "Hold");
    window().clickedRevertToDefault();
    EXPECT_EQ(scope.manager().getStringValueFromKey("SamplePrintMode"), "Normal");
}

// "es" is tested before "de": a language tag holding both gets the Spanish width.
TEST(DetailedSettings, TreeColumnIsWidestForSpanishAndMatchesLanguagesInOrder) {
    for (const auto& [language, width] : {std::pair{"pt-ES", 460}, {"de-DE", 230}, {"it", 365}, {"fr-CA", 415},
                                          {"ja", 185}, {"de-ES", 460}})
        EXPECT_EQ(DetailedSettingsWinController::treeColumnWidthForLanguage(language), width) << language;
}

TEST(DetailedSettings, EveryPaneOfTheTreeBecomesATabOncePerPaneManager) {
    PanelScope scope;
    window().awakeFromNib();
    const auto tabView = window().tabView();
    const auto& tabs = tabView->tabs();
    ASSERT_FALSE(tabs.empty());
    EXPECT_EQ(tabs.front().identifier, "Page");
    window().awakeFromNib();
    EXPECT_EQ(window().tabView(), tabView);
    PanePlugInMgr::setSharedInstance(nullptr);
    window().awakeFromNib();
    ASSERT_EQ(window().tabView()->tabs().size(), tabs.size());
    EXPECT_NE(window().tabView()->tabs().front().view, tabs.front().view);
    EXPECT_EQ(window().selectedViewStyleTag(), DetailedSettingsWinController::TabStyleTag);
    window().selectViewStyleItem(1);
    EXPECT_TRUE(window().tabView()->isTabless());
    EXPECT_TRUE(window().isTreeShown());
    window().selectViewStyleItem(0);
}
