#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "DialogWindowSupport.h"
#include "favorites/JobNameWinController.h"
#include "qt/JobNameWindow.h"
#include "qt/RadioGroupModelWidget.h"
#include "qt/TextFieldModelEdit.h"

using namespace QtDialogTest;

namespace {

class JobNameWindowTest : public DialogWindowTest {
protected:
    static void chooseTypedName(JobNameWindow& window) {
        QTest::mouseClick(window.jobNameRadio()->buttons().at(1), Qt::LeftButton);
    }

    std::string specific = "Auto";
    std::string escaped = "untouched";
    std::string name;
};

}  // namespace

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
