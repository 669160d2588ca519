#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include "QtTestSupport.h"
#include "qt/MailAddressTextField.h"
#include "qt/NoEmptyTextField.h"
#include "qt/QtAlertPresenter.h"

using namespace QtWidgetTest;

namespace {

// A shown window with the field under test and a second field to move the focus to.
template <class Field>
class FieldWindow {
public:
    template <class... Arguments>
    explicit FieldWindow(Arguments&&... arguments)
        : field(new Field(std::forward<Arguments>(arguments)...)), other(new QLineEdit) {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }
    QWidget window;
    Field* field;
    QLineEdit* other;
};

}  // namespace

TEST(NoEmptyTextField, ABlankEditEndsWithTheTextFromBeforeIt) {
    FieldWindow<NoEmptyTextField> shown;
    shown.field->setText("Proof run");
    shown.other->setFocus();
    shown.field->setFocus();
    shown.field->selectAll();
    QTest::keyClick(shown.field, Qt::Key_Delete);
    EXPECT_EQ(shown.field->text(), "");
    shown.other->setFocus();
    EXPECT_EQ(shown.field->text(), "Proof run");
    shown.field->setFocus();
    shown.field->selectAll();
    typeText(shown.field, "Final");
    QTest::keyClick(shown.field, Qt::Key_Return);
    shown.field->selectAll();
    QTest::keyClick(shown.field, Qt::Key_Backspace);
    QTest::keyClick(shown.field, Qt::Key_Return);
    EXPECT_EQ(shown.field->text(), "Final");

    // A field that was empty may be left empty, or blank.
    FieldWindow<NoEmptyTextField> empty;
    typeText(empty.field, " ");
    empty.other->setFocus();
    EXPECT_EQ(empty.field->text(), " ");
}

TEST(MailAddressTextField, TakesOnlyAddressCharactersAndRefusesAnInvalidList) {
    Language english("en");
    Alerts::setPresenter(std::make_shared<QtAlertPresenter>());
    {
        FieldWindow<MailAddressTextField> shown(QStringLiteral("Mail Address"));
        typeText(shown.field, QString::fromUtf8("op@presse.example; ä"));
        EXPECT_EQ(shown.field->text(), "op@presse.example; ");
        typeText(shown.field, "x");
        MessageBoxClicker message("OK");
        shown.other->setFocus();
        EXPECT_TRUE(message.clicked());
        EXPECT_EQ(message.text(), "Enter one or more mail addresses of at least two characters each, separated by "
                                  "semicolons or commas.");
        EXPECT_EQ(shown.window.focusWidget(), shown.field);
        shown.field->end(false);
        typeText(shown.field, "y@press.example");
        shown.other->setFocus();
        EXPECT_EQ(shown.window.focusWidget(), shown.other);
        EXPECT_EQ(shown.field->text(), "op@presse.example; xy@press.example");
    }
    Alerts::setPresenter(nullptr);
}
