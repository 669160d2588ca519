#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTest>

#include "QtTestSupport.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/JobNameWinController.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "qt/FavoriteWindow.h"
#include "qt/JobNameWindow.h"
#include "qt/ListModelWidget.h"
#include "qt/OutlineViewWidget.h"
#include "qt/RadioGroupModelWidget.h"
#include "qt/SaveFavoriteWindow.h"
#include "qt/TextFieldModelEdit.h"

using namespace QtWidgetTest;

namespace {

const PlistDictionary kDefaults{{"DuplexMode", "None"}, {"ColorMode", "Color"}};
const PlistDictionary kCurrent{{"DuplexMode", "DuplexNoTumble"}, {"ColorMode", "Grayscale"}};

// Stands in for the pane plug-in manager, which does not yet mark settings that differ:
// the finishing pane holds a stapling mode that differs from its default; only the paper
// and finishing panes are loaded.
class PaneManagerStandIn : public PaneTreeResolver {
public:
    PlistDictionary resolveItem(const PlistDictionary& item, bool) override {
        if (item.stringFor("bundleName", "") != "Finishing") return item;
        const PlistArray settings{PlistDictionary{{"mainAlias", "Staple mode"}, {"differedWithDefault", true}},
                                  PlistDictionary{{"mainAlias", "Punch"}}};
        return {{"bundleName", "Finishing"}, {"items", settings}};
    }
    std::optional<std::string> panelNameOfBundleName(const std::string& name) override {
        if (name == "Page") return "Paper";
        if (name == "Finishing") return "Finishing";
        return std::nullopt;
    }
};

class FavoriteWindowTest : public DialogWindowTest {
protected:
    void SetUp() override {
        DialogWindowTest::SetUp();
        writeFavorite(favorite("Beta"), "beta comment", {{"JB_DUPLEX", "2"}});
        writeFavorite(favorite("Alpha"), "alpha comment", {{"CL_COLMD", "1"}});
    }

    bool show() {
        return ShowFavoriteModalDialog(kCurrent, [] { return kDefaults; });
    }

    static QStringList rows(const FavoriteWindow& window) {
        QStringList shown;
        for (int row = 0; row < window.favoriteList()->count(); ++row) shown << window.favoriteList()->item(row)->text();
        return shown;
    }
    static void clickRow(FavoriteWindow& window, const QString& name) {
        ListModelWidget* list = window.favoriteList();
        const auto items = list->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name.toStdString();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items.front()).center());
    }
    // The whole path in the name field and no file of the list selected, as the dialog holds
    // them when a user has typed the path: a selected row would win over the typed name. The
    // field is filled quietly, or the dialog would select the typed file and write its short
    // name back; the selection is cleared last, since the folder, read in the background,
    // may select the proposed file at any moment. The dialog always closes, so that a
    // failure cannot hang the test.
    static void choose(QFileDialog& dialog, const std::string& path) {
        const QString chosen = QString::fromStdString(path);
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        auto* list = dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"));
        if (field && list) {
            const QSignalBlocker quiet(field);
            field->setText(chosen);
            list->clearSelection();
        }
        EXPECT_EQ(dialog.selectedFiles().value(0), chosen);
        if (dialog.selectedFiles().value(0) != chosen) return dialog.reject();
        static_cast<QDialog&>(dialog).accept();
    }
    static void retype(TextFieldModelEdit* field, const QString& text) {
        field->setFocus();
        field->selectAll();
        typeText(field, text);
    }
};

class JobNameWindowTest : public DialogWindowTest {
protected:
    static void chooseTypedName(JobNameWindow& window) {
        QTest::mouseClick(window.jobNameRadio()->buttons().at(1), Qt::LeftButton);
    }

    std::string specific = "Auto";
    std::string escaped = "untouched";
    std::string name;
};

class SaveFavoriteWindowTest : public DialogWindowTest {
protected:
    std::string name = "Draft";
    std::string comment;
};

}  // namespace

TEST_F(FavoriteWindowTest, ShowsTheListWithTheFixedEntriesAndTheSelectedRowsFields) {
    WhenShown<FavoriteWindow> user([](FavoriteWindow& window) {
        EXPECT_EQ(window.windowTitle(), "Manage Favorites");
        EXPECT_EQ(window.favoriteListHeading()->text(), "Favorites");
        EXPECT_EQ(window.settingListHeading()->text(), "Settings");
        EXPECT_EQ(rows(window), (QStringList{"<Current Settings>", "Default Settings", "Alpha", "Beta"}));
        EXPECT_EQ(window.favoriteList()->currentRow(), 0);
        EXPECT_FALSE(window.nameField()->isEnabled());
        EXPECT_FALSE(window.deleteButton()->isEnabled());
        EXPECT_FALSE(window.exportButton()->isEnabled());
        EXPECT_TRUE(window.importButton()->isEnabled());
        EXPECT_EQ(window.importButton()->text(), "Import…");
        clickRow(window, "Alpha");
        EXPECT_EQ(window.favoriteList()->currentRow(), 2);
        EXPECT_EQ(window.nameField()->text(), "Alpha");
        EXPECT_EQ(window.commentField()->text(), "alpha comment");
        EXPECT_TRUE(window.nameField()->isEnabled());
        EXPECT_TRUE(window.deleteButton()->isEnabled());
        window.nameField()->setFocus();
        clickRow(window, "Beta");
        EXPECT_EQ(window.focusWidget(), window.favoriteList());
        QTest::keyClick(window.favoriteList(), Qt::Key_Up);
        EXPECT_EQ(window.favoriteList()->currentRow(), 2);
        EXPECT_EQ(window.nameField()->text(), "Alpha");
        EXPECT_EQ(window.focusWidget(), window.favoriteList());
        QTest::mouseClick(window.cancelButton(), Qt::LeftButton);
    });
    EXPECT_FALSE(show());
    EXPECT_TRUE(user.ran());
}

TEST_F(FavoriteWindowTest, AMouseSelectionIsRefusedWhileTheNameDuplicatesAnother) {
    WhenShown<FavoriteWindow> user([](FavoriteWindow& window) {
        clickRow(window, "Alpha");
        retype(window.nameField(), "Beta");
        MessageBoxClicker message("OK");
        clickRow(window, "Default Settings");
        EXPECT_TRUE(message.clicked());
        EXPECT_EQ(message.text(), "A favorite with this name already exists. Please choose another name.");
        EXPECT_EQ(message.parentWindow(), &window);
        EXPECT_EQ(window.favoriteList()->currentRow(), 2);
        EXPECT_EQ(window.focusWidget(), window.nameField());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_FALSE(show());
    EXPECT_TRUE(user.ran());
    EXPECT_EQ(FavoriteFile(favorite("Alpha")).comment(), "alpha comment");
}

TEST_F(FavoriteWindowTest, ImportOpensInTheFavoritesFolderAndListsTheChosenFile) {
    const std::string imported = file("Night Shift.pqz");
    writeFavorite(imported, "from the night shift", {{"JB_DUPLEX", "1"}});
    WhenShown<FavoriteWindow> user([&](FavoriteWindow& window) {
        WhenShown<QFileDialog> picker([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().absolutePath(), QString::fromStdString(favoriteFolder()));
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
            EXPECT_TRUE(dialog.nameFilters().front().contains("*.pqz"));
            EXPECT_EQ(dialog.parentWidget(), &window);
            EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
            choose(dialog, imported);
        });
        QTest::mouseClick(window.importButton(), Qt::LeftButton);
        EXPECT_TRUE(picker.ran());
        // Favorites with files sort by their paths: the imported one lies outside the folder.
        EXPECT_EQ(rows(window), (QStringList{"<Current Settings>", "Default Settings", "Night Shift", "Alpha", "Beta"}));
        QTest::mouseClick(window.okButton(), Qt::LeftButton);
    });
    EXPECT_TRUE(show());
    EXPECT_EQ(FavoriteFile(favorite("Night Shift")).comment(), "from the night shift");
}

TEST_F(FavoriteWindowTest, ExportProposesTheFavoritesNameAndWritesItsComment) {
    const std::string target = file("Alpha for the press.pqz");
    WhenShown<FavoriteWindow> user([&](FavoriteWindow& window) {
        clickRow(window, "Alpha");
        retype(window.commentField(), "edited");
        WhenShown<QFileDialog> picker([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            ASSERT_FALSE(dialog.selectedFiles().isEmpty());
            EXPECT_EQ(dialog.selectedFiles().front(), QString::fromStdString(favorite("Alpha")));
            choose(dialog, target);
        });
        QTest::mouseClick(window.exportButton(), Qt::LeftButton);
        EXPECT_TRUE(picker.ran());
        QTest::mouseClick(window.cancelButton(), Qt::LeftButton);
    });
    EXPECT_FALSE(show());
    EXPECT_EQ(FavoriteFile(target).comment(), "edited");
    EXPECT_EQ(FavoriteFile(favorite("Alpha")).comment(), "alpha comment");
}

TEST_F(FavoriteWindowTest, TheSettingTreeShowsThePanesAndOpensWhereSettingsDiffer) {
    install(std::make_shared<PaneManagerStandIn>());
    WhenShown<FavoriteWindow> user([](FavoriteWindow& window) {
        OutlineViewWidget* tree = window.settingTree();
        const QAbstractItemModel* model = tree->model();
        ASSERT_EQ(model->rowCount(), 13);
        const QModelIndex paper = model->index(0, 0);
        const QModelIndex layout = model->index(1, 0);
        const QModelIndex finishing = model->index(2, 0);
        EXPECT_EQ(paper.data().toString(), "Paper");
        EXPECT_EQ(finishing.data().toString(), "Finishing");
        EXPECT_FALSE(paper.data(Qt::ForegroundRole).isValid());
        EXPECT_EQ(qvariant_cast<QBrush>(layout.data(Qt::ForegroundRole)),
                  QApplication::palette().brush(QPalette::Disabled, QPalette::Text));
        EXPECT_EQ(qvariant_cast<QIcon>(paper.data(Qt::DecorationRole)).name(), "folder");
        EXPECT_TRUE(tree->isExpanded(finishing));
        EXPECT_FALSE(tree->isExpanded(paper));
        ASSERT_EQ(model->rowCount(finishing), 2);
        const QModelIndex stapling = model->index(0, 0, finishing);
        EXPECT_EQ(stapling.data().toString(), "Staple mode");
        EXPECT_EQ(qvariant_cast<QIcon>(stapling.data(Qt::DecorationRole)).name(), "emblem-important");
        // A pane that is not loaded cannot be chosen.
        tree->setCurrentIndex(layout);
        EXPECT_EQ(window.settingOutline().selectedItem(), nullptr);

        tree->collapse(finishing);
        clickRow(window, "Default Settings");
        EXPECT_TRUE(tree->isExpanded(tree->model()->index(2, 0)));
        EXPECT_EQ(window.settingOutline().selectedItem(), nullptr);
        QTest::mouseClick(window.cancelButton(), Qt::LeftButton);
    });
    EXPECT_FALSE(show());
    EXPECT_TRUE(user.ran());
}

TEST_F(JobNameWindowTest, ShowsTheRowsAndEnablesTheNameOnlyForATypedName) {
    WhenShown<JobNameWindow> user([](JobNameWindow& window) {
        EXPECT_EQ(window.windowTitle(), "Job Name");
        const auto& rows = window.jobNameRadio()->buttons();
        ASSERT_EQ(rows.size(), 2u);
        EXPECT_EQ(rows[0]->text(), "Auto");
        EXPECT_EQ(rows[1]->text(), "Enter a name");
        EXPECT_TRUE(rows[0]->isChecked());
        EXPECT_EQ(window.jobNameLabel()->text(), "Job name");
        EXPECT_FALSE(window.jobNameField()->isEnabled());
        EXPECT_FALSE(window.jobNameLabel()->isEnabled());
        EXPECT_EQ(window.jobNameField()->placeholderText(), "Up to the maximum length");
        EXPECT_EQ(window.jobNameField()->toolTip(), "Up to the maximum length");
        chooseTypedName(window);
        EXPECT_TRUE(rows[1]->isChecked());
        EXPECT_TRUE(window.jobNameField()->isEnabled());
        EXPECT_TRUE(window.jobNameLabel()->isEnabled());
        QTest::mouseClick(window.cancelButton(), Qt::LeftButton);
    });
    EXPECT_FALSE(ShowJobNameModalDialog(specific, &escaped, name));
    EXPECT_TRUE(user.ran());
    EXPECT_EQ(specific, "Auto");
    EXPECT_EQ(name, "");
}

TEST_F(JobNameWindowTest, AnEmptyTypedNameIsRefusedInASheetAndTheDialogStaysOpen) {
    WhenShown<JobNameWindow> user([](JobNameWindow& window) {
        chooseTypedName(window);
        MessageBoxClicker message("OK");
        QTest::mouseClick(window.okButton(), Qt::LeftButton);
        EXPECT_TRUE(message.clicked());
        EXPECT_EQ(message.text(), "Please enter a job name of 1 to 255 characters.");
        EXPECT_TRUE(message.wasWindowModal());
        EXPECT_EQ(message.parentWindow(), &window);
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_FALSE(ShowJobNameModalDialog(specific, &escaped, name));
    EXPECT_TRUE(user.ran());
    EXPECT_EQ(escaped, "untouched");
}

TEST_F(JobNameWindowTest, ARestoredNameIsShownAndTypingStopsAtTheLimit) {
    specific = "Input";
    name = "Night run";
    WhenShown<JobNameWindow> user([](JobNameWindow& window) {
        TextFieldModelEdit* field = window.jobNameField();
        EXPECT_TRUE(window.jobNameRadio()->buttons().at(1)->isChecked());
        EXPECT_EQ(field->text(), "Night run");
        EXPECT_TRUE(field->isEnabled());
        field->setFocus();
        field->end(false);
        typeText(field, QString(250, QLatin1Char('x')));
        EXPECT_EQ(field->text().size(), 255);
        EXPECT_EQ(JobNameWinController::sharedInstance().jobName().size(), 255u);
        QTest::keyClick(field, Qt::Key_Return);
    });
    EXPECT_TRUE(ShowJobNameModalDialog(specific, nullptr, name));
    EXPECT_TRUE(user.ran());
    EXPECT_EQ(name, "Night run" + std::string(246, 'x'));
}

// The proposed name comes selected with the focus; typing over it stops at 27 bytes of name.
TEST_F(SaveFavoriteWindowTest, ShowsTheProposedNameWithTheFocusAndSavesWhatWasTyped) {
    WhenShown<SaveFavoriteWindow> user([](SaveFavoriteWindow& window) {
        EXPECT_EQ(window.windowTitle(), "Save Favorite");
        EXPECT_EQ(window.nameLabel()->text(), "Favorite name");
        EXPECT_EQ(window.commentField()->placeholderText(), "Up to the maximum length");
        EXPECT_EQ(window.focusWidget(), window.nameField());
        EXPECT_EQ(window.nameField()->selectedText(), "Draft");
        typeText(window.nameField(), QString::fromUtf8("Ölkreide Ölkreide Ölkreide"));
        EXPECT_EQ(window.nameField()->text(), QString::fromUtf8("Ölkreide Ölkreide Ölkrei"));
        window.commentField()->setFocus();
        typeText(window.commentField(), "Coated, duplex");
        QTest::mouseClick(window.saveButton(), Qt::LeftButton);
    });
    EXPECT_TRUE(ShowSaveFavoriteModalDialog(name, comment));
    EXPECT_TRUE(user.ran());
    EXPECT_EQ(name, "Ölkreide Ölkreide Ölkrei");
    EXPECT_EQ(comment, "Coated, duplex");
}

TEST_F(SaveFavoriteWindowTest, ARefusedNameIsSaidInASheetAndTakesTheFocusBack) {
    WhenShown<SaveFavoriteWindow> user([](SaveFavoriteWindow& window) {
        window.nameField()->selectAll();
        typeText(window.nameField(), "A/B");
        window.commentField()->setFocus();
        MessageBoxClicker message("OK");
        QTest::mouseClick(window.saveButton(), Qt::LeftButton);
        EXPECT_TRUE(message.clicked());
        EXPECT_TRUE(message.text().startsWith("A favorite name must have 1 to 27 bytes")) << message.text().toStdString();
        EXPECT_EQ(message.parentWindow(), &window);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.focusWidget(), window.nameField());
        QTest::mouseClick(window.cancelButton(), Qt::LeftButton);
    });
    EXPECT_FALSE(ShowSaveFavoriteModalDialog(name, comment));
    EXPECT_TRUE(user.ran());
    EXPECT_EQ(name, "Draft");
}
