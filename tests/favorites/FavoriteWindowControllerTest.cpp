#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>

#include "DialogTestSupport.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteWindowController.h"
#include "panes/PanePlugInMgr.h"
#include "ppd/PrintOptionTreeDataSource.h"

using namespace ComQuorvantVelmar_Plugin;
namespace fs = std::filesystem;

namespace {

const PlistDictionary kDefaults{{"DuplexMode", "None"}, {"ColorMode", "Color"}, {"OffsetMode", "None"}};
const PlistDictionary kCurrent{{"DuplexMode", "DuplexNoTumble"}, {"ColorMode", "Grayscale"}};

void writeFavorite(const std::string& path, const std::string& comment, const PlistDictionary& options) {
    fs::create_directories(fs::path(path).parent_path());
    FavoriteFile favorite;
    favorite.setComment(comment);
    favorite.setOptions(options);
    favorite.writeToFile(path);
}

// Every file below folder with its bytes, to compare a folder before and after.
std::map<std::string, std::string> contentsOf(const std::string& folder) {
    std::map<std::string, std::string> contents;
    if (!fs::exists(folder)) return contents;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) contents[entry.path().string()] = OstrinTest::readFile(entry.path().string());
    return contents;
}

class FavoriteManager : public OstrinTest::DialogTest {
protected:
    void SetUp() override {
        DialogTest::SetUp();
        writeFavorite(favorite("Beta"), "beta comment", {{"JB_DUPLEX", "2"}});
        writeFavorite(favorite("Alpha"), "alpha comment", {{"CL_COLMD", "1"}, {"JB_OFFSET", "2"}});
        writeFavorite(favorite("Gamma"), "", {{"JB_DUPLEX", "0"}});
    }

    std::string favorite(const std::string& name) const { return favoriteFolder() + "/" + name + ".pqz"; }

    std::vector<std::string> rows() const { return controller.favoriteList().rows(); }
    std::int64_t rowNamed(const std::string& name) const {
        const auto& names = controller.favoriteList().rows();
        return std::find(names.begin(), names.end(), name) - names.begin();
    }
    void open() {
        controller.showAsModalDialog("", kCurrent, [this] {
            ++defaultRequests;
            return kDefaults;
        });
    }
    // Runs the dialog with script as the user's part.
    int show(ScriptedModalWindowRunner::Script script, const std::string& profilePath = {}) {
        runner->queue(std::move(script));
        return controller.showAsModalDialog(profilePath, kCurrent, [] { return kDefaults; });
    }

    FavoriteWindowController controller;
    int defaultRequests = 0;
};

}  // namespace

// The current settings show as they are; a favorite shows the defaults, asked for once,
// overlaid with its options.
TEST_F(FavoriteManager, ListsTheFixedEntriesFirstAndShowsEachRowsSettings) {
    open();
    EXPECT_EQ(rows(), (std::vector<std::string>{"<Current Settings>", "Default Settings", "Alpha", "Beta", "Gamma"}));
    EXPECT_EQ(controller.favoriteList().selectedRow(), 0);
    EXPECT_FALSE(controller.nameField().isEnabled());
    EXPECT_EQ(controller.settingList().stringFor("DuplexMode"), "DuplexNoTumble");
    EXPECT_EQ(controller.settingList().stringFor("ColorMode"), "Grayscale");
    EXPECT_EQ(defaultRequests, 0);
    EXPECT_EQ(controller.favoriteItems()[2].path(), favorite("Alpha"));
    controller.selectRow(1);
    EXPECT_EQ(controller.settingList().stringFor("DuplexMode"), "None");
    EXPECT_EQ(controller.settingList().stringFor("ColorMode"), "Color");
    EXPECT_TRUE(controller.selectRowWithMouse(rowNamed("Alpha")));
    EXPECT_EQ(controller.commentField().stringValue(), "alpha comment");
    EXPECT_TRUE(controller.nameField().isEnabled());
    EXPECT_TRUE(controller.exportButton().isEnabled());
    EXPECT_EQ(controller.settingList().stringFor("DuplexMode"), "None");
    EXPECT_EQ(controller.settingList().stringFor("ColorMode"), "Grayscale");
    EXPECT_EQ(controller.settingList().stringFor("OffsetMode"), "Set");
    EXPECT_EQ(defaultRequests, 1);
}

TEST_F(FavoriteManager, TheSummaryTreeShowsTheSelectedRowsSettingsAndTheProfile) {
    OstrinTest::writeFile(file("Proof.cps"), "Gamma=2.2\r\n");
    OutlineViewModel outline;
    PrintOptionTreeDataSource tree(nullptr);
    tree.setOutlineView(&outline, false);
    controller.setSettingTree(&tree);
    show([&](ModalWindow&) {
        EXPECT_EQ(tree.currentPrintOption(), controller.settingList());
        controller.selectRow(rowNamed("Beta"));
        EXPECT_EQ(tree.currentPrintOption()->stringFor("DuplexMode"), "DuplexTumble");
        controller.clickedCancel();
    }, file("Proof.cps"));
    EXPECT_EQ(tree.profileDictionary(), (PlistDictionary{{"Gamma", "2.2"}}));
}

TEST_F(FavoriteManager, MouseSelectionIsRefusedWhileTheRowHasTheDefaultNameOrAFilesName) {
    open();
    controller.selectRow(rowNamed("Beta"));
    controller.nameField().typeText("Default Settings");
    EXPECT_FALSE(controller.selectRowWithMouse(0));
    EXPECT_EQ(controller.favoriteList().selectedRow(), rowNamed("Beta"));
    EXPECT_EQ(alerts->asked().back().messageText,
              "This name belongs to the default settings. Please choose another name.");

    controller.nameField().typeText("Beta");
    controller.commentField().typeText("proofs only");
    EXPECT_TRUE(controller.selectRowWithMouse(0));
    EXPECT_EQ(controller.favoriteItems()[static_cast<std::size_t>(rowNamed("Beta"))].comment(), "proofs only");

    // A file of the name in the folder is a duplicate too; the program's own selection
    // change passes unchecked and leaves the edit behind.
    controller.selectRow(rowNamed("Gamma"));
    controller.nameField().typeText("Delta");
    writeFavorite(favorite("Delta"), "", {{"JB_DUPLEX", "1"}});
    EXPECT_FALSE(controller.selectRowWithMouse(0));
    EXPECT_EQ(alerts->asked().back().messageText, "A favorite with this name already exists. Please choose another name.");
    controller.selectRow(0);
    EXPECT_EQ(rows()[4], "Gamma");
}

TEST_F(FavoriteManager, OkRenamesRecommentsImportsAndTrashesInOneGo) {
    writeFavorite(file("elsewhere/Delta.pqz"), "delta comment", {{"JB_DUPLEX", "1"}});
    writeFavorite(file("elsewhere/Epsilon.pqz"), "epsilon comment", {{"JB_OFFSET", "1"}});
    writeFavorite(file("elsewhere/Zeta.pqz"), "", {{"JB_OFFSET", "2"}});
    const std::string alphaBytes = OstrinTest::readFile(favorite("Alpha"));
    const std::string deltaBytes = OstrinTest::readFile(file("elsewhere/Delta.pqz"));
    const std::string epsilonBytes = OstrinTest::readFile(file("elsewhere/Epsilon.pqz"));
    alerts->queue(AlertFirstButtonReturn);
    alerts->queue(AlertFirstButtonReturn);
    files->queue(file("elsewhere/Delta.pqz"));
    files->queue(file("elsewhere/Epsilon.pqz"));
    files->queue(file("elsewhere/Zeta.pqz"));
    const int answer = show([this](ModalWindow&) {
        controller.selectRow(rowNamed("Alpha"));
        controller.nameField().typeText("Alpha renamed");
        ASSERT_TRUE(controller.selectRowWithMouse(rowNamed("Beta")));
        controller.commentField().typeText("beta, new comment");
        ASSERT_TRUE(controller.selectRowWithMouse(rowNamed("Gamma")));
        controller.clickedDelete();
        controller.clickedImport();
        controller.clickedImport();
        controller.clickedImport();
        ASSERT_TRUE(controller.selectRowWithMouse(rowNamed("Zeta")));
        controller.clickedDelete();
        ASSERT_TRUE(controller.selectRowWithMouse(rowNamed("Delta")));
        controller.nameField().typeText("Delta kept");
        controller.clickedOK();
    });
    EXPECT_EQ(answer, 1);

    EXPECT_FALSE(fs::exists(favorite("Alpha")));
    EXPECT_EQ(OstrinTest::readFile(favorite("Alpha renamed")), alphaBytes);
    EXPECT_EQ(FavoriteFile(favorite("Beta")).comment(), "beta, new comment");
    EXPECT_EQ(FavoriteFile(favorite("Beta")).options(), (PlistDictionary{{"JB_DUPLEX", "2"}}));
    EXPECT_FALSE(fs::exists(favorite("Gamma")));
    EXPECT_TRUE(fs::exists(trashFolder() + "/Gamma.pqz"));

    const FavoriteFile delta(favorite("Delta kept"));
    EXPECT_EQ(delta.comment(), "delta comment");
    EXPECT_EQ(delta.options(), (PlistDictionary{{"JB_DUPLEX", "1"}}));
    EXPECT_EQ(OstrinTest::readFile(file("elsewhere/Delta.pqz")), deltaBytes);
    EXPECT_FALSE(fs::exists(favorite("Delta")));
    EXPECT_EQ(OstrinTest::readFile(favorite("Epsilon")), epsilonBytes);
    EXPECT_EQ(OstrinTest::readFile(file("elsewhere/Epsilon.pqz")), epsilonBytes);
    // A deleted import was never copied: its own file stays where the user keeps it.
    EXPECT_TRUE(fs::exists(file("elsewhere/Zeta.pqz")));
    EXPECT_FALSE(fs::exists(favorite("Zeta")));
    EXPECT_FALSE(fs::exists(trashFolder() + "/Zeta.pqz"));
    EXPECT_EQ(fs::exists(trashFolder()) ? std::distance(fs::directory_iterator(trashFolder()), {}) : 0, 1);
}

TEST_F(FavoriteManager, CancelLeavesEveryFileAsItWas) {
    writeFavorite(file("elsewhere/Delta.pqz"), "delta comment", {{"JB_DUPLEX", "1"}});
    const auto before = contentsOf(file(""));
    alerts->queue(AlertFirstButtonReturn);
    files->queue(file("elsewhere/Delta.pqz"));
    const int answer = show([this](ModalWindow&) {
        controller.selectRow(rowNamed("Alpha"));
        controller.nameField().typeText("Alpha renamed");
        controller.commentField().typeText("changed");
        ASSERT_TRUE(controller.selectRowWithMouse(rowNamed("Gamma")));
        controller.clickedDelete();
        controller.clickedImport();
        EXPECT_EQ(rows().size(), 5u);
        controller.clickedCancel();
    });
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(contentsOf(file("")), before);
    EXPECT_FALSE(fs::exists(trashFolder()));
}

// A file of another device type, or of a name the list has, stays out of the list.
TEST_F(FavoriteManager, ImportRefusesAnotherDeviceTypeAndANameTheListHas) {
    fs::create_directories(file("elsewhere"));
    OstrinTest::writeFile(file("elsewhere/Other.pqz"), "2\n3\n0\nComment=\nA=1\t\t");
    writeFavorite(file("elsewhere/Beta.pqz"), "", {{"JB_DUPLEX", "1"}});
    files->queue(file("elsewhere/Other.pqz"));
    files->queue(file("elsewhere/Beta.pqz"));
    open();
    controller.selectRow(rowNamed("Alpha"));
    controller.clickedImport();
    controller.clickedImport();
    ASSERT_EQ(files->asked().size(), 2u);
    ASSERT_EQ(alerts->asked().size(), 2u);
    EXPECT_EQ(alerts->asked()[0].messageText, "The file could not be loaded as a favorite of this printer.");
    EXPECT_EQ(alerts->asked()[1].messageText, "A favorite with this name already exists. Please choose another name.");
    EXPECT_EQ(rows().size(), 5u);
    EXPECT_EQ(controller.favoriteList().selectedRow(), rowNamed("Alpha"));
}

TEST_F(FavoriteManager, ExportWritesTheFavoriteWithItsCurrentComment) {
    files->queue(file("exported.pqz"));
    open();
    controller.selectRow(rowNamed("Alpha"));
    controller.commentField().typeText("for the print shop");
    controller.clickedExport();
    ASSERT_EQ(files->asked().size(), 1u);
    const FavoriteFile exported(file("exported.pqz"));
    EXPECT_EQ(exported.comment(), "for the print shop");
    EXPECT_EQ(exported.options(), (PlistDictionary{{"CL_COLMD", "1"}, {"JB_OFFSET", "2"}}));
    EXPECT_EQ(FavoriteFile(favorite("Alpha")).comment(), "alpha comment");
}

TEST_F(FavoriteManager, DeleteAsksFirstAndKeepsTheFileUntilOk) {
    alerts->queue(AlertSecondButtonReturn);
    alerts->queue(AlertFirstButtonReturn);
    open();
    controller.selectRow(rowNamed("Beta"));
    controller.clickedDelete();
    ASSERT_EQ(alerts->asked().size(), 1u);
    EXPECT_EQ(alerts->asked()[0].messageText,
              "Do you want to delete the favorite \"Beta\"? It goes to the trash when you close the favorites "
              "window with OK.");
    EXPECT_EQ(alerts->asked()[0].buttons, (std::vector<std::string>{"OK", "Cancel"}));
    EXPECT_EQ(rows().size(), 5u);
    controller.clickedDelete();
    EXPECT_EQ(rows(), (std::vector<std::string>{"<Current Settings>", "Default Settings", "Alpha", "Gamma"}));
    EXPECT_EQ(controller.favoriteList().selectedRow(), 0);
    ASSERT_EQ(controller.deletedItems().size(), 1u);
    EXPECT_EQ(controller.deletedItems()[0].path(), favorite("Beta"));
    EXPECT_TRUE(fs::exists(favorite("Beta")));
    controller.clickedDelete();
    EXPECT_EQ(alerts->asked().size(), 2u);
}

// Through the panes of the product: without a defaults provider the panes give the
// defaults, in PPD keyword form (crease positions in cep, not millimetres); a favorite that
// trims the face and keeps the zoom of the defaults ("100" against "100.0") marks the face
// trim alone in the summary tree and opens its pane.
TEST_F(FavoriteManager, ThePanesGiveTheDefaultsAndTheTreeMarksWhatDiffersFromThem) {
    PanePlugInMgr::setSharedInstance(nullptr);
    PanePlugInMgr::sharedInstance()->loadPlugIns();
    writeFavorite(favorite("Trimmed"), "", {{"FN_FACETRIM", "1"}, {"IM_MAG", "100"}});
    OutlineViewModel outline;
    PrintOptionTreeDataSource tree;
    tree.setOutlineView(&outline, false);
    controller.setSettingTree(&tree);
    // The marked rows and the opened panes of the tree as it shows the row named row.
    auto marksFor = [&](const std::string& row) {
        controller.selectRow(rowNamed(row));
        std::vector<std::string> marks;
        for (const auto& shown : outline.rows()) {
            const OutlineCell cell = tree.objectValueForItem(shown.item);
            if (outline.isItemExpanded(shown.item)) marks.push_back("open " + cell.label);
            if (cell.iconName == "emblem-important") marks.push_back("marked " + cell.label);
        }
        return marks;
    };
    runner->queue([&](ModalWindow&) {
        EXPECT_EQ(marksFor("Trimmed"), (std::vector<std::string>{"open Finishing", "marked Face Trim"}));
        EXPECT_EQ(marksFor("Default Settings"), std::vector<std::string>{});
        EXPECT_EQ(controller.settingList().stringFor("CreaseMode"), "Off");
        EXPECT_EQ(controller.settingList().stringFor("CreasePosition1"), "154205");
        EXPECT_EQ(controller.settingList().stringFor("QZRGBColorCorrect"), "sRGB");
        controller.clickedOK();
    });
    EXPECT_EQ(controller.showAsModalDialog("", kCurrent, nullptr), 1);
    PanePlugInMgr::setSharedInstance(nullptr);
}
