#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "QtTestSupport.h"
#include "core/FormatterAttachment.h"
#include "core/MaxBytesFormatter.h"
#include "core/PageRangeFormatter.h"
#include "qt/QtFormatterBinding.h"

using namespace QtWidgetTest;

namespace {

// A dialog with one line edit and the binding of formatter to it.
struct Dialog {
    QWidget window;
    QLineEdit* field = new QLineEdit(&window);
    QtFormatterBinding* binding;

    Dialog(std::shared_ptr<TextLimitFormatter> formatter, QString title = {})
        : binding(new QtFormatterBinding(field, std::move(formatter), std::move(title))) {
        (new QVBoxLayout(&window))->addWidget(field);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }
};

}  // namespace

TEST(FormatterBinding, RefusedEditIsUndoneToTheLastAcceptedTextAndSelection) {
    Dialog dialog(MaxBytesFormatter::setMaxBytesFormatter(10));
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
    Dialog dialog(std::make_shared<MaxBytesFormatter>(3, 10), "Favorite Name");
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
    Dialog dialog(PageRangeFormatter::setValidationFormatter(20, PageRangeFormatter::pageRangeCharacterSet(),
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
    Dialog dialog(attachMaxBytesFormatterWithEscape(20));
    dialog.binding->setValue("Job \\(1\\)");
    EXPECT_EQ(dialog.field->text(), "Job (1)");
    QTest::keyClicks(dialog.field, "\\");
    EXPECT_EQ(dialog.binding->value(), "Job \\(1\\)\\\\");
}
