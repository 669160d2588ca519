#include <gtest/gtest.h>

#include <QCheckBox>
#include <QTest>
#include <QVBoxLayout>

#include "QtTestSupport.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/QtAlertPresenter.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"

using namespace QtWidgetTest;

namespace {

// Secure print and authentication print exclude each other; the rule engine asks the user
// through real message boxes and the check boxes show what it decided.
class ExclusivePrintModes : public testing::Test {
protected:
    void SetUp() override {
        _manager.setPdeResourcePath(productBundle()->resourcePath());
        _secure = addControl("SecPrint");
        _authenticated = addControl("AuthJob");
        _window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&_window));
        Alerts::setPresenter(std::make_shared<QtAlertPresenter>(&_window));
        QTest::mouseClick(_secure, Qt::LeftButton);
        ASSERT_EQ(_manager.getStringValue("SecPrint"), "True");
    }
    void TearDown() override { Alerts::setPresenter(nullptr); }

    QCheckBox* addControl(const std::string& keyword) {
        auto control = buildControl(keyword, productBundle());
        _manager.addControl(control);
        NotifyUnit::postNotificationName(keyword);
        auto* view = new VORNUIWidget(control, &_window);
        _layout->addWidget(view);
        return qobject_cast<CheckBoxControlWidget*>(view->body())->checkBox();
    }

    Language _english{"en"};
    VORNMgr _manager;
    QWidget _window;
    QVBoxLayout* _layout = new QVBoxLayout(&_window);
    QCheckBox* _secure = nullptr;
    QCheckBox* _authenticated = nullptr;
};

}  // namespace

// The question is a sheet of the window; "No" takes the click back, "Yes" clears the other box.
TEST_F(ExclusivePrintModes, TheAnswerToTheQuestionDecidesWhichBoxStaysChecked) {
    for (const bool accepted : {false, true}) {
        MessageBoxClicker clicker(accepted ? "Yes" : "No");
        QTest::mouseClick(_authenticated, Qt::LeftButton);
        EXPECT_TRUE(clicker.clicked());
        EXPECT_TRUE(clicker.wasWindowModal());
        EXPECT_TRUE(clicker.text().contains("Authentication Print")) << clicker.text().toStdString();
        EXPECT_EQ(_authenticated->isChecked(), accepted);
        EXPECT_EQ(_secure->isChecked(), !accepted);
        EXPECT_EQ(_manager.getStringValue("AuthJob"), accepted ? "True" : "False");
        EXPECT_EQ(_manager.getStringValue("SecPrint"), accepted ? "False" : "True");
    }
}
