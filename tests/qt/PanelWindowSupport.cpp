#include "PanelWindowSupport.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "pde/TarnPDEByCocoa.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/PopupControlWidget.h"

namespace QtPanelTest {

ShownPanel::ShownPanel(const std::string& language) : _language(language) {
    _scope = std::make_unique<PanelTest::PanelScope>();
    _window = std::make_unique<QWidget>();
    _widget = new PanelWidget(panel(), _window.get());
    auto* layout = new QVBoxLayout(_window.get());
    layout->addWidget(_widget);
    _dialogs = std::make_unique<QtDialogs>(panel(), _window.get());
    _window->show();
    _window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(_window.get()));
}

ShownPanel::~ShownPanel() {
    _dialogs.reset();
    _window.reset();
    _scope.reset();
}

void ShownPanel::click(const std::shared_ptr<PanelButton>& button) {
    QPushButton* shown = _widget->buttonFor(button.get());
    ASSERT_TRUE(shown && shown->isVisible() && shown->isEnabled());
    QTest::mouseClick(shown, Qt::LeftButton);
}

std::string modelText(TarnPDEByCocoa& panel, const std::string& key) {
    const PlistValue* value = panel.printOption().find(key);
    if (!value) return "(none)";
    if (const bool* flag = value->boolean()) return *flag ? "True" : "False";
    return value->string() ? *value->string() : "(not text)";
}

VORNUIWidget* settingIn(const QWidget& widget, const std::string& key) {
    for (VORNUIWidget* setting : widget.findChildren<VORNUIWidget*>())
        if (setting->control()->mainKeyword() == key) return setting;
    return nullptr;
}

bool choose(VORNUIWidget* setting, const QString& text) {
    auto* popup = setting ? qobject_cast<PopupControlWidget*>(setting->body()) : nullptr;
    QComboBox* combo = popup ? popup->comboBox() : nullptr;
    const int target = combo ? combo->findText(text) : -1;
    if (target < 0) return false;
    while (combo->currentIndex() != target) {
        const int before = combo->currentIndex();
        QTest::keyClick(combo, before < target ? Qt::Key_Down : Qt::Key_Up);
        if (combo->currentIndex() == before) return false;
    }
    return true;
}

void toggle(VORNUIWidget* setting) {
    auto* box = setting ? qobject_cast<CheckBoxControlWidget*>(setting->body()) : nullptr;
    ASSERT_TRUE(box);
    QTest::mouseClick(box->checkBox(), Qt::LeftButton);
}

}  // namespace QtPanelTest
