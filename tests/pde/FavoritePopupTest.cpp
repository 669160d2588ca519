#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <filesystem>

#include "PanelTestSupport.h"
#include "TestSupport.h"
#include "core/TextScrambling.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/PopUpMenuModel.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "panes/PanePlugInMgr.h"
#include "pde/FavoriteDifference.h"
#include "pde/PanelButton.h"

using namespace PanelTest;
namespace fs = std::filesystem;

namespace {

// The panel with its favorites and trash in a private home, shown as the dialog shows it.
class FavoritePopup : public ::testing::Test {
protected:
    void SetUp() override { panel().willShow(); }

    PanelScope& scope() { return _scope; }
    TarnPDEByCocoa& panel() { return _scope.panel(); }
    PopUpMenuModel& popup() { return panel().favoritePopup(); }
    std::string favorite(const std::string& name) const {
        return _home.file("config/Quorvant/OstrinFlow/PDE/favorite/" + name + ".pqz");
    }
    std::string trashed(const std::string& name) const { return _home.file("data/Trash/files/" + name + ".pqz"); }

    std::vector<std::string> titles() {
        std::vector<std::string> shown;
        for (const PopUpMenuItem& item : popup().items()) shown.push_back(item.isSeparator ? "-" : item.title);
        return shown;
    }
    std::string selectedTitle() {
        const PopUpMenuItem* item = popup().itemAtIndex(popup().indexOfSelectedItem());
        return item ? item->title : "<none>";
    }
    void select(const std::string& title) {
        popup().selectItemAtIndex(popup().indexOfItemWithTitle(title));
        panel().selectFavorite();
    }

private:
    OstrinTest::TemporaryDirectory _home;
    OstrinTest::EnvironmentOverride _config{"XDG_CONFIG_HOME", _home.file("config")};
    OstrinTest::EnvironmentOverride _data{"XDG_DATA_HOME", _home.file("data")};
    PanelScope _scope;
};

}  // namespace

TEST_F(FavoritePopup, AChangeMarksTheFavoriteUntilTheSettingsEqualItAgain) {
    ASSERT_EQ(panel().saveFavorite("Office", "stapled"), favorite("Office"));
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings", "-", "Office"}));
    EXPECT_EQ(selectedTitle(), "Office");
    EXPECT_TRUE(panel().deleteFavoriteButton()->isEnabled());

    scope().userChanges("StapleMode", "Saddle");
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings", "-", "Change SettingOffice", "Office"}));
    EXPECT_EQ(selectedTitle(), "Change SettingOffice");
    EXPECT_EQ(panel().backupFavoriteName(), "Change SettingOffice");
    // The marker stands for the favorite below it.
    EXPECT_EQ(panel()._currentFavoriteName(), "Office");
    EXPECT_EQ(panel()._currentFavoritePath(), favorite("Office"));
    EXPECT_FALSE(panel().deleteFavoriteButton()->isEnabled());
    // A second change keeps the one marker.
    scope().userChanges("ColorMode", "Grayscale");
    EXPECT_EQ(titles().size(), 4u);

    // Back to the saved settings, though the favorite's file writes some numbers
    // differently ("100" for the magnification "100.0").
    scope().userChanges("ColorMode", "Color");
    scope().userChanges("StapleMode", "None");
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings", "-", "Office"}));
    EXPECT_EQ(selectedTitle(), "Office");
    EXPECT_TRUE(panel().deleteFavoriteButton()->isEnabled());
}

TEST_F(FavoritePopup, RemovingTheMarkerKeepsTheSelectionOnTheSameEntry) {
    panel().saveFavorite("Proofs", "");
    panel().saveFavorite("Office", "");
    const struct {
        const char* selected;
        const char* expected;
    } cases[] = {{"Change SettingOffice", "Office"}, {"Proofs", "Proofs"}, {"Default Settings", "Default Settings"}};
    for (const auto& probe : cases) {
        select("Office");
        scope().userChanges("StapleMode", "Saddle");
        ASSERT_EQ(panel()._indexOfChangePreset(), 2);
        popup().selectItemAtIndex(popup().indexOfItemWithTitle(probe.selected));
        panel()._removeChangedPresetTitleFromFavoritePopup();
        EXPECT_EQ(selectedTitle(), probe.expected) << probe.selected;
        EXPECT_EQ(panel()._indexOfChangePreset(), TarnPDEByCocoa::notFound);
    }
}

TEST_F(FavoritePopup, SelectingAFavoritePutsItsValuesIntoTheModelAndTheSettings) {
    // Settings of the panes reach the model from the detailed settings window.
    panel().printOption().set("Trimmer", "True");
    scope().userChanges("StapleMode", "Saddle");
    scope().userChanges("DuplexMode", "DuplexNoTumble");
    panel().saveFavorite("Trimmed", "");
    // The defaults entry stands for the panes' defaults; the panel's own settings stay.
    select("Default Settings");
    EXPECT_EQ(scope().option("Trimmer"), "False");
    EXPECT_EQ(scope().option("StapleMode"), "Saddle");
    EXPECT_FALSE(panel().deleteFavoriteButton()->isEnabled());
    scope().userChanges("StapleMode", "None");
    select("Trimmed");
    EXPECT_EQ(scope().option("Trimmer"), "True");
    EXPECT_EQ(scope().option("StapleMode"), "Saddle");
    EXPECT_EQ(scope().manager().getStringValueFromKey("Trimmer"), "True");
    EXPECT_EQ(scope().manager().getStringValueFromKey("DuplexMode"), "DuplexNoTumble");
    EXPECT_EQ(panel().selectedFavorite(), "Trimmed");
    EXPECT_TRUE(panel().deleteFavoriteButton()->isEnabled());
    // Applied, the favorite equals the settings: no marker.
    panel()._checkDifferenceFromCurrentFavorite(true);
    EXPECT_EQ(panel()._indexOfChangePreset(), TarnPDEByCocoa::notFound);
}

TEST_F(FavoritePopup, SaveOffersTheCurrentFavoriteAndSavesWhatTheUserNames) {
    panel().saveFavorite("Office", "first floor");
    std::vector<std::string> offered;
    bool ok = false;
    runWindowsWith([&](ModalWindow& window) {
        auto& dialog = dynamic_cast<SaveFavoriteWindowController&>(window);
        offered = {dialog.name(), dialog.comment()};
        dialog.nameField().setStringValue("Proofs");
        dialog.commentField().setStringValue("for Ana");
        ok ? dialog.clickedOK() : dialog.clickedCancel();
    });
    panel().clickedSaveFavoriteButton();
    EXPECT_EQ(offered, (std::vector<std::string>{"Office", "first floor"}));
    EXPECT_FALSE(fs::exists(favorite("Proofs")));

    ok = true;
    panel().clickedSaveFavoriteButton();
    EXPECT_EQ(FavoriteFile(favorite("Proofs")).comment(), "for Ana");
    EXPECT_EQ(selectedTitle(), "Proofs");
}

TEST_F(FavoritePopup, DeleteMovesTheFavoriteToTheTrashOnceTheUserAgrees) {
    panel().saveFavorite("Office", "");
    scope().queueAnswer(AlertSecondButtonReturn);
    panel().deleteFavoriteButton()->performClick();
    ASSERT_EQ(scope().asked().size(), 1u);
    EXPECT_EQ(scope().asked()[0].messageText, "Warning");
    EXPECT_EQ(scope().asked()[0].buttons, (std::vector<std::string>{"Yes", "No"}));
    EXPECT_TRUE(fs::exists(favorite("Office")));

    scope().queueAnswer(AlertFirstButtonReturn);
    panel().deleteFavoriteButton()->performClick();
    EXPECT_FALSE(fs::exists(favorite("Office")));
    EXPECT_TRUE(fs::exists(trashed("Office")));
    // The separator went with the last favorite.
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings"}));
    EXPECT_EQ(selectedTitle(), "Default Settings");
    EXPECT_FALSE(panel().deleteFavoriteButton()->isEnabled());
}

TEST_F(FavoritePopup, AfterTheFavoriteManagerThePopupShowsTheFavoritesAnew) {
    panel().saveFavorite("Office", "");
    panel().saveFavorite("Proofs", "");
    scope().queueAnswer(AlertFirstButtonReturn);
    runWindowsWith([](ModalWindow& window) {
        auto& manager = dynamic_cast<FavoriteWindowController&>(window);
        const auto& rows = manager.favoriteList().rows();
        manager.selectRow(std::find(rows.begin(), rows.end(), "Office") - rows.begin());
        manager.clickedDelete();
        manager.clickedOK();
    });
    panel().clickedBrowseFavoriteButton();
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings", "-", "Proofs"}));
    EXPECT_EQ(selectedTitle(), "Proofs");
    EXPECT_TRUE(fs::exists(trashed("Office")));
}

TEST_F(FavoritePopup, AnAddedFavoriteJoinsOnlyAtTheEnd) {
    panel().saveFavorite("Office", "");
    panel()._insertPreset("Alpha", favorite("Alpha"));
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings", "-", "Office"}));
    panel()._insertPreset("Proofs", favorite("Proofs"));
    EXPECT_EQ(titles(), (std::vector<std::string>{"Default Settings", "-", "Office", "Proofs"}));
    EXPECT_EQ(selectedTitle(), "Proofs");
}

// "secret" scrambled from two different first bytes, and "other", as the secure fields
// store them.
constexpr const char* secretOnce = "10f22ec250d63e";
constexpr const char* secretAgain = "808291a77f878e";
constexpr const char* other = "100ef40e16eb";

TEST(FavoriteDifference, ComparesTextsNumbersBooleansAndScrambledPasswords) {
    ASSERT_EQ(decryptString(PanePlugInMgr::secureTextFieldKey, secretAgain), "secret");
    const struct {
        PlistDictionary settings;
        PlistDictionary favorite;
        bool differs;
    } cases[] = {
        {{{"Copies", "1"}}, {{"Copies", "1.0"}}, false},
        {{{"Width", "2.10e2"}}, {{"Width", "210"}}, false},
        {{{"Name", "abc"}}, {{"Name", "ABC"}}, true},
        {{{"Copies", "3 copies"}}, {{"Copies", "3"}}, true},
        {{{"Center", true}}, {{"Center", "True"}}, false},
        {{{"Center", false}}, {{"Center", "True"}}, true},
        {{{"Copies", 3}}, {{"Copies", "4"}}, false},
        {{{"OnlyHere", "x"}}, {{"OnlyThere", "y"}}, false},
        {{{"QZFormPassword", secretOnce}}, {{"QZFormPassword", secretAgain}}, false},
        {{{"QZSecurityPassword", secretAgain}}, {{"QZSecurityPassword", other}}, true},
        {{{"OtherPassword", secretOnce}}, {{"OtherPassword", secretAgain}}, true},
    };
    for (std::size_t index = 0; index < std::size(cases); ++index)
        EXPECT_EQ(FavoriteDifference::differs(cases[index].settings, cases[index].favorite), cases[index].differs)
            << "case " << index;
}
