#include <gtest/gtest.h>

#include <string>

#include "DialogTestSupport.h"
#include "favorites/SaveFavoriteWindowController.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

using SaveFavoriteDialog = OstrinTest::DialogTest;

SaveFavoriteWindowController& asSaveDialog(ModalWindow& window) {
    return dynamic_cast<SaveFavoriteWindowController&>(window);
}

}  // namespace

TEST_F(SaveFavoriteDialog, LoadsTitlesAndByteLimits) {
    SaveFavoriteWindowController controller;
    controller.loadWindow();
    EXPECT_EQ(controller.windowTitle(), "Save Favorite");
    EXPECT_EQ(controller.nameLabel().title(), "Favorite name");
    EXPECT_EQ(controller.saveButton().title(), "Save");
    EXPECT_EQ(controller.cancelButton().title(), "Cancel");
    EXPECT_EQ(controller.commentField().placeholderString(), "Up to the maximum length");
    // 13 two-byte characters and one more byte fill the 27 bytes of a name.
    const std::string fullName = "äääääääääääääx";
    EXPECT_TRUE(controller.nameField().typeText(fullName));
    EXPECT_FALSE(controller.nameField().typeText("ääääääääääääää"));
    EXPECT_EQ(controller.name(), fullName);
    EXPECT_TRUE(controller.commentField().typeText(std::string(255, 'c')));
    EXPECT_FALSE(controller.commentField().typeText(std::string(256, 'c')));
}

TEST_F(SaveFavoriteDialog, TheDefaultFavoritesNameIsRefusedWithTheNameFieldFocused) {
    SaveFavoriteWindowController controller;
    bool stillRunning = false;
    runner->queue([&](ModalWindow& window) {
        asSaveDialog(window).clickedOK();
        stillRunning = window.isRunning();
        EXPECT_EQ(window.firstResponder(), &asSaveDialog(window).nameField());
        asSaveDialog(window).clickedCancel();
    });
    EXPECT_EQ(controller.showAsModalDialog("Default Settings", "my defaults"), 0);
    EXPECT_TRUE(stillRunning);
    ASSERT_EQ(alerts->asked().size(), 1u);
    EXPECT_EQ(alerts->asked()[0].messageText, "This name belongs to the default settings. Please choose another name.");
}

TEST_F(SaveFavoriteDialog, TheNameIsCheckedBeforeTheComment) {
    SaveFavoriteWindowController controller;
    runner->queue([&](ModalWindow& window) {
        auto& dialog = asSaveDialog(window);
        dialog.clickedOK();
        dialog.nameField().typeText("Proofs");
        dialog.clickedOK();
        EXPECT_EQ(window.firstResponder(), &dialog.commentField());
        dialog.commentField().setStringValue("short");
        dialog.clickedOK();
    });
    EXPECT_EQ(controller.showAsModalDialog("a/b", std::string(256, 'c')), 1);
    ASSERT_EQ(alerts->asked().size(), 2u);
    EXPECT_EQ(alerts->asked()[0].messageText.rfind("A favorite name must have 1 to 27 bytes", 0), 0u);
    EXPECT_EQ(alerts->asked()[1].messageText, "A comment must not be longer than 255 bytes.");
    EXPECT_EQ(controller.name(), "Proofs");
}

TEST_F(SaveFavoriteDialog, OkReplacesNameAndCommentAndCancelKeepsThem) {
    std::string name = "Draft";
    std::string comment = "before";
    runner->queue([](ModalWindow& window) {
        EXPECT_EQ(asSaveDialog(window).name(), "Draft");
        asSaveDialog(window).nameField().typeText("Final");
        asSaveDialog(window).commentField().typeText("approved by the customer");
        asSaveDialog(window).clickedOK();
    });
    EXPECT_TRUE(ShowSaveFavoriteModalDialog(name, comment));
    EXPECT_EQ(name, "Final");
    EXPECT_EQ(comment, "approved by the customer");

    runner->queue([](ModalWindow& window) {
        asSaveDialog(window).nameField().typeText("Other");
        asSaveDialog(window).clickedCancel();
    });
    EXPECT_FALSE(ShowSaveFavoriteModalDialog(name, comment));
    EXPECT_EQ(name, "Final");
    EXPECT_EQ(comment, "approved by the customer");
}
