#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "DialogWindowSupport.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "qt/SaveFavoriteWindow.h"
#include "qt/TextFieldModelEdit.h"

using namespace QtDialogTest;

namespace {

class SaveFavoriteWindowTest : public DialogWindowTest {
protected:
    std::string name = "Draft";
    std::string comment;
};

}  // namespace

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
