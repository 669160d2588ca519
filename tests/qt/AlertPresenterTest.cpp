#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTest>
#include <QVBoxLayout>

#include <map>

#include "QtTestSupport.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/QtAlertPresenter.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNTextField.h"

using namespace QtWidgetTest;

namespace {

AlertRequest question(std::vector<std::string> buttons) {
    AlertRequest request;
    request.messageText = "Stapling needs the finisher.";
    request.informativeText = "Change the output tray to <Finisher>?";
    request.buttons = std::move(buttons);
    return request;
}

}  // namespace

TEST(QtAlertPresenter, AnswersByTheButtonClickedInOrder) {
    QtAlertPresenter presenter;
    const AlertRequest request = question({"Yes", "No", "Later"});
    for (const auto& [title, answer] : {std::pair{"Yes", 1000}, {"No", 1001}, {"Later", 1002}}) {
        MessageBoxClicker clicker(title);
        EXPECT_EQ(presenter.runModal(request), answer);
        EXPECT_TRUE(clicker.clicked());
        EXPECT_EQ(clicker.text(), "Stapling needs the finisher.");
        EXPECT_EQ(clicker.informativeText(), "Change the output tray to <Finisher>?");
        EXPECT_EQ(clicker.buttons().size(), 3);
        EXPECT_FALSE(clicker.wasWindowModal());
    }
}

TEST(QtAlertPresenter, EscapeAnswersTheSecondButtonAndAMessageHasOk) {
    QtAlertPresenter presenter;
    {
        MessageBoxClicker escape("");
        EXPECT_EQ(presenter.runModal(question({"Yes", "No"})), 1001);
    }
    MessageBoxClicker ok("OK");
    EXPECT_EQ(presenter.runModal(question({})), 1000);
    EXPECT_EQ(ok.buttons(), QStringList{"OK"});
}

TEST(QtAlertPresenter, WithAParentWindowTheBoxIsItsSheet) {
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QtAlertPresenter presenter(&window);
    MessageBoxClicker clicker("No");
    EXPECT_EQ(presenter.runModal(question({"Yes", "No"})), 1001);
    EXPECT_TRUE(clicker.wasWindowModal());
    EXPECT_EQ(clicker.parentWindow(), &window);
}

TEST(QtAlertPresenter, EngineMessagesReachTheUserInTheirLanguage) {
    Language german("de");
    Alerts::setPresenter(std::make_shared<QtAlertPresenter>());
    VORNTextField field;
    field.setNum(true);
    field.setUnit(VORNTextField::UnitOneDecimal);
    field.setMin(25);
    field.setMax(400);
    MessageBoxClicker clicker("OK");
    field.errorMsg();
    Alerts::setPresenter(nullptr);
    EXPECT_TRUE(clicker.clicked());
    EXPECT_EQ(clicker.text(), "Geben Sie einen Wert von 25.0 bis 400.0 ein.");
}

// Secure print and authentication print exclude each other: the rule engine asks in a sheet
// of the window; "No" takes the click back, "Yes" clears the other box.
TEST(ExclusivePrintModes, TheAnswerToTheQuestionDecidesWhichBoxStaysChecked) {
    Language english("en");
    VORNMgr manager;
    manager.setPdeResourcePath(productBundle()->resourcePath());
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    std::map<std::string, QCheckBox*> boxes;
    for (const char* keyword : {"SecPrint", "AuthJob"}) {
        auto control = buildControl(keyword, productBundle());
        manager.addControl(control);
        NotifyUnit::postNotificationName(keyword);
        auto* view = new VORNUIWidget(control, &window);
        layout->addWidget(view);
        boxes[keyword] = qobject_cast<CheckBoxControlWidget*>(view->body())->checkBox();
    }
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(boxes["SecPrint"], Qt::LeftButton);
    ASSERT_EQ(manager.getStringValue("SecPrint"), "True");
    Alerts::setPresenter(std::make_shared<QtAlertPresenter>(&window));
    for (const bool accepted : {false, true}) {
        MessageBoxClicker clicker(accepted ? "Yes" : "No");
        QTest::mouseClick(boxes["AuthJob"], Qt::LeftButton);
        EXPECT_TRUE(clicker.clicked());
        EXPECT_TRUE(clicker.wasWindowModal());
        EXPECT_TRUE(clicker.text().contains("Authentication Print")) << clicker.text().toStdString();
        EXPECT_EQ(boxes["AuthJob"]->isChecked(), accepted);
        EXPECT_EQ(boxes["SecPrint"]->isChecked(), !accepted);
        EXPECT_EQ(manager.getStringValue("AuthJob"), accepted ? "True" : "False");
        EXPECT_EQ(manager.getStringValue("SecPrint"), accepted ? "False" : "True");
    }
    Alerts::setPresenter(nullptr);
}
