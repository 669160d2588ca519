#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "QtTestSupport.h"
#include "qt/StepperWidget.h"
#include "qt/TextFieldControlWidget.h"
#include "settings_ui/VORNTextField.h"

using namespace QtWidgetTest;

namespace {

// Types text over whatever the field shows, as a user who selected all of it.
void typeOver(QLineEdit* field, const QString& text) {
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, text);
}

QLineEdit* fieldOf(const ShownControl& shown) { return shown.body<TextFieldControlWidget>()->lineEdit(); }

}  // namespace

// The field takes the decimal separator of the user's language, refuses the other one, and
// hands the control the number with a point.
TEST(NumberFieldWidget, TypesTheUsersDecimalSeparatorAndRefusesTheOther) {
    const struct {
        const char* language;
        const char* shown;
        const char* limits;
        const char* refused;
        const char* typed;
        const char* whole;  // a typed "80" shown back; nullptr: not checked
    } cases[] = {
        {"en", "100.0", "% (25.0 - 400.0)", "150,5", "150.5", nullptr},
        {"de", "100,0", "% (25,0 - 400,0)", "150.5", "150,5", "80,0"},
    };
    for (const auto& probe : cases) {
        SCOPED_TRACE(probe.language);
        Language chosen(probe.language);
        ShownControl shown(buildControl("Zoom"));
        QLineEdit* field = fieldOf(shown);
        EXPECT_EQ(field->text(), probe.shown);
        QStringList labels;
        for (const QLabel* label : shown.view().findChildren<QLabel*>()) labels.append(label->text());
        EXPECT_TRUE(labels.contains(probe.limits));
        typeOver(field, probe.refused);
        EXPECT_EQ(field->text(), "150");
        typeOver(field, QString(probe.typed) + "5");
        EXPECT_EQ(field->text(), probe.typed);
        EXPECT_EQ(field->cursorPosition(), 5);
        NotificationRecorder recorder({"Zoom"});
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(shown.control().getStringValue(), "150.5");
        EXPECT_EQ(recorder.names(), std::vector<std::string>{"Zoom"});
        if (!probe.whole) continue;
        // A whole number typed in German is written back in the user's form with its decimal.
        typeOver(field, "80");
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(field->text(), probe.whole);
        EXPECT_EQ(shown.control().getStringValue(), "80.0");
    }
}

TEST(NumberFieldWidget, AboveMaximumRefusedAtOnceBelowMinimumReportedAtTheEnd) {
    Language english("en");
    AlertScript alerts;
    ShownControl shown(buildControl("Zoom"));
    QLineEdit* field = fieldOf(shown);
    typeOver(field, "5000");
    EXPECT_EQ(field->text(), "50");
    EXPECT_TRUE(alerts.asked().empty());
    typeOver(field, "10");
    EXPECT_EQ(field->text(), "10");
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.asked()[0].messageText, "Enter a value from 25.0 to 400.0.");
    EXPECT_EQ(field->text(), "100.0");
    EXPECT_EQ(shown.control().getStringValue(), "100.0");
}

TEST(NumberFieldWidget, StepperStepsFromTheTypedNumberInTheUsersForm) {
    Language german("de");
    ShownControl shown(buildControl("Zoom"));
    QLineEdit* field = fieldOf(shown);
    StepperWidget* stepper = shown.body<TextFieldControlWidget>()->stepper();
    ASSERT_TRUE(stepper);
    typeOver(field, "150,5");
    NotificationRecorder recorder({"Zoom"});
    QTest::mouseClick(stepper->upButton(), Qt::LeftButton);
    EXPECT_EQ(field->text(), "150,6");
    QTest::mouseClick(stepper->downButton(), Qt::LeftButton);
    QTest::mouseClick(stepper->downButton(), Qt::LeftButton);
    EXPECT_EQ(field->text(), "150,4");
    EXPECT_EQ(shown.control().getStringValue(), "150.4");
    EXPECT_EQ(recorder.names().size(), 3u);
    EXPECT_TRUE(stepper->upButton()->autoRepeat());
    EXPECT_FALSE(ShownControl(buildControl("PageRange")).body<TextFieldControlWidget>()->stepper());
}

TEST(TextFieldWidget, PageListsFollowTheTypingRule) {
    ShownControl shown(buildControl("PageRange"));
    QLineEdit* field = fieldOf(shown);
    for (const auto& [typed, kept] : {std::pair{"1-3,5", "1-3,5"}, {"0-3", "-3"}, {"1--,,2", "1-,2"},
                                      {"1,2,3,4,5,6,7,8", "1,2,3,4,5,6,"}}) {
        typeOver(field, typed);
        EXPECT_EQ(field->text(), kept);
    }
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_EQ(field->text(), "1,2,3,4,5,6,");
    EXPECT_EQ(field->cursorPosition(), 0);
}

TEST(TextFieldWidget, TextsTheProgramSetsAreShown) {
    ShownControl shown(buildControl("MailAddress"));
    shown.control().setStringValue("press.room@example.com");
    EXPECT_EQ(fieldOf(shown)->text(), "press.room@example.com");
    shown.control().textField()->setStringValue("");
    EXPECT_EQ(fieldOf(shown)->text(), "");
}

TEST(SecureTextFieldWidget, HidesWhatIsTypedUnderItsHeadings) {
    ShownControl shown(buildControl("Password"));
    QLineEdit* field = fieldOf(shown);
    EXPECT_EQ(field->echoMode(), QLineEdit::Password);
    EXPECT_EQ(shown.view().groupTitleLabel()->text(), "Secure Print");
    EXPECT_EQ(shown.body<TextFieldControlWidget>()->headTitle()->text(), "Four to eight characters");
    EXPECT_EQ(shown.view().titleLabel()->text(), "Password");
    typeOver(field, "s3cret");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(shown.control().getStringValue(), "s3cret");
    EXPECT_EQ(shown.control().getSelectedOptionText(), "********");
}

TEST(TextFieldWidget, ExtraButtonPostsItsOwnNotification) {
    ShownControl shown(buildControl("Copies"));
    QPushButton* button = shown.body<TextFieldControlWidget>()->button();
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), "Reset");
    NotificationRecorder recorder({"Copies_Button"});
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(recorder.names(), std::vector<std::string>{"Copies_Button"});
    EXPECT_FALSE(ShownControl(buildControl("Zoom")).body<TextFieldControlWidget>()->button());
}
