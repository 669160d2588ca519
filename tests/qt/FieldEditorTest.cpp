#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include "QtTestSupport.h"
#include "core/FormatterAttachment.h"
#include "core/MaxBytesFormatter.h"
#include "core/PageRangeFormatter.h"
#include "qt/MailAddressTextField.h"
#include "qt/NoEmptyTextField.h"
#include "qt/QtAlertPresenter.h"
#include "qt/QtFormatterBinding.h"

using namespace QtWidgetTest;

namespace {

// A shown window with the field under test, holding the focus, and a second field to move
// the focus to.
template <class Field = QLineEdit>
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

// A shown line edit with formatter bound to it.
struct BoundField : FieldWindow<> {
    explicit BoundField(std::shared_ptr<TextLimitFormatter> formatter, QString title = {})
        : binding(new QtFormatterBinding(field, std::move(formatter), std::move(title))) {}
    QtFormatterBinding* binding;
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

TEST(FormatterBinding, RefusedEditIsUndoneToTheLastAcceptedTextAndSelection) {
    BoundField dialog(MaxBytesFormatter::setMaxBytesFormatter(10));
    EXPECT_EQ(QtFormatterBinding::of(dialog.field), dialog.binding);
    QTest::keyClicks(dialog.field, "abcdefghi");
    typeText(dialog.field, QString::fromUtf8("é"));
    EXPECT_EQ(dialog.field->text(), "abcdefghi");
    EXPECT_EQ(dialog.field->cursorPosition(), 9);
    QTest::keyClicks(dialog.field, "jk");
    EXPECT_EQ(dialog.field->text(), "abcdefghij");
    dialog.field->setSelection(2, 3);
    QTest::keyClick(dialog.field, Qt::Key_Backspace);
    EXPECT_EQ(dialog.field->text(), "abfghij");
    dialog.field->setSelection(0, 1);
    typeText(dialog.field, QString::fromUtf8("\xE2\x82\xAC"));
    EXPECT_EQ(dialog.field->text(), QString::fromUtf8("\xE2\x82\xAC" "bfghij"));
}

TEST(FormatterBinding, TooShortTextKeepsEditingWithTheMinimumMessage) {
    AlertScript alerts;
    BoundField dialog(std::make_shared<MaxBytesFormatter>(3, 10), "Favorite Name");
    QTest::keyClicks(dialog.field, "ab");
    EXPECT_FALSE(dialog.binding->textShouldEndEditing());
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.asked()[0].messageText, "Please specify at least 3 characters for Favorite Name.");
    EXPECT_TRUE(dialog.field->hasFocus());
    QTest::keyClick(dialog.field, Qt::Key_Return);
    EXPECT_EQ(alerts.asked().size(), 2u);
    dialog.field->clear();
    EXPECT_TRUE(dialog.binding->textShouldEndEditing());
    QTest::keyClicks(dialog.field, "abc");
    EXPECT_TRUE(dialog.binding->textShouldEndEditing());
    EXPECT_EQ(alerts.asked().size(), 2u);
}

TEST(FormatterBinding, InvalidTextIsReportedOnlyWhileTheDialogIsShown) {
    AlertScript alerts;
    BoundField dialog(PageRangeFormatter::setValidationFormatter(20, PageRangeFormatter::pageRangeCharacterSet(),
                                                                 "Enter pages such as 1-3,5."));
    QTest::keyClicks(dialog.field, "5-3x");
    EXPECT_EQ(dialog.field->text(), "5-3");
    EXPECT_FALSE(dialog.binding->textShouldEndEditing());
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.asked()[0].messageText, "Enter pages such as 1-3,5.");
    dialog.window.hide();
    EXPECT_TRUE(dialog.binding->textShouldEndEditing());
}

TEST(FormatterBinding, EscapingFormattersShowTextAndKeepTheEscapedValue) {
    BoundField dialog(attachMaxBytesFormatterWithEscape(20));
    dialog.binding->setValue("Job \\(1\\)");
    EXPECT_EQ(dialog.field->text(), "Job (1)");
    QTest::keyClicks(dialog.field, "\\");
    EXPECT_EQ(dialog.binding->value(), "Job \\(1\\)\\\\");
}
