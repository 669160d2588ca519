#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QSlider>

#include <map>

#include "QtTestSupport.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/PopupControlWidget.h"
#include "qt/QtScreenshot.h"
#include "qt/RadioGroupControlWidget.h"
#include "qt/SliderControlWidget.h"
#include "qt/TextFieldControlWidget.h"
#include "qt/ViewTreeWidget.h"
#include "settings_ui/VORNTextField.h"

using namespace QtWidgetTest;

namespace {

// The name of the type whose widget view shows for control, showing the control's value;
// "" when the widget is of another type.
std::string renderedType(const VORNUIWidget& view, VORNUI& control) {
    switch (control.controlType()) {
        case VORNUI::Type::CheckBox:
            if (auto* body = qobject_cast<CheckBoxControlWidget*>(view.body())) {
                EXPECT_EQ(body->checkBox()->isChecked(), control.checkBoxShownState() != 0);
                return "CheckBox";
            }
            break;
        case VORNUI::Type::PopupButton:
            if (auto* body = qobject_cast<PopupControlWidget*>(view.body())) {
                EXPECT_EQ(body->comboBox()->count(), static_cast<int>(control.popupItems().size()));
                EXPECT_EQ(body->comboBox()->currentIndex(), control.selectedItemIndex());
                return "PopupButton";
            }
            break;
        case VORNUI::Type::RadioButton:
        case VORNUI::Type::HRadioButton:
            if (auto* body = qobject_cast<RadioGroupControlWidget*>(view.body())) {
                EXPECT_EQ(body->buttons().size(), control.radioCells().size());
                return "RadioButton";
            }
            break;
        case VORNUI::Type::Slider:
            if (auto* body = qobject_cast<SliderControlWidget*>(view.body())) {
                EXPECT_EQ(body->slider()->value(), static_cast<int>(control.slider().position));
                return "Slider";
            }
            break;
        case VORNUI::Type::TextFieldNumber:
        case VORNUI::Type::TextFieldText:
        case VORNUI::Type::SecureTextFieldText:
            if (auto* body = qobject_cast<TextFieldControlWidget*>(view.body())) {
                EXPECT_EQ(body->lineEdit()->text().toStdString(), control.textField()->stringValue());
                EXPECT_EQ(body->stepper() != nullptr, control.stepper().has_value());
                return control.controlClass();
            }
            break;
        default: break;
    }
    return "";
}

// A picture shows something: more than the background and one more colour.
int coloursOf(const QImage& image) {
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2) colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

}  // namespace

TEST(ProductUI, EveryControlRendersInEnglishAndGerman) {
    for (const char* language : {"en", "de"}) {
        Language chosen(language);
        std::vector<std::string> diagnostics;
        Diagnostics::setObserver([&diagnostics](std::string_view line) { diagnostics.emplace_back(line); });
        std::map<std::string, int> rendered;
        for (const std::string& keyword : descriptionsOf(*productBundle()).keys()) {
            SCOPED_TRACE(std::string(language) + " " + keyword);
            auto control = buildControl(keyword, productBundle());
            VORNUIWidget view(control);
            const std::string type = renderedType(view, *control);
            EXPECT_NE(type, "");
            ++rendered[type];
            EXPECT_EQ(view.childWidgets().size(), control->childControls().size());
            if (view.titleLabel()) {
                EXPECT_EQ(view.titleLabel()->text().toStdString(), control->texts().title);
            }
            EXPECT_GE(view.sizeHint().height(), static_cast<int>(control->getControlHeight()));
        }
        Diagnostics::setObserver(nullptr);
        EXPECT_EQ(diagnostics, std::vector<std::string>{});
        EXPECT_EQ(rendered.size(), 7u);
        EXPECT_GT(rendered["SecureTextField_text"], 0);
    }
}

// Each setting of every pane becomes a control widget where the engine laid it out; a
// picture of each pane goes to screenshots/pane-<name>-<language>.png.
TEST(PaneScreenshot, EveryProductPaneRendersItsSettingsInEnglishAndGerman) {
    SetNSBundleForPrincipalBundle(productBundle());
    for (const std::string language : {"en", "de"}) {
        Language chosen(language);
        PanePlugInMgr manager(productBundle());
        ASSERT_TRUE(manager.loadPlugIns());
        for (const auto& [name, entry] : *manager.plugInTable()) {
            SCOPED_TRACE(language + " " + name);
            auto panel = manager.panelViewOfBundleName(name);
            ASSERT_TRUE(panel);
            ViewTreeWidget tree(panel);
            auto controls = entry.paneConroller->getListVORNUI();
            ASSERT_TRUE(controls && !controls->empty());
            for (const auto& control : *controls) {
                auto* widget = qobject_cast<VORNUIWidget*>(tree.widgetFor(control.get()));
                ASSERT_TRUE(widget) << control->mainKeyword();
                EXPECT_EQ(widget->geometry().y(), static_cast<int>(control->frame().y)) << control->mainKeyword();
            }
            tree.resize(tree.sizeHint());
            const std::string path = std::string(OSTRIN_SCREENSHOT_DIR) + "/pane-" + name + "-" + language + ".png";
            ASSERT_TRUE(QtScreenshot::saveWidget(tree, path));
            const QImage picture(QString::fromStdString(path));
            EXPECT_EQ(picture.size(), tree.size());
            EXPECT_GT(coloursOf(picture), 20);
        }
    }
    SetNSBundleForPrincipalBundle(nullptr);
}

TEST(Screenshot, UnwritablePlaceFails) {
    QWidget widget;
    widget.resize(40, 20);
    EXPECT_FALSE(QtScreenshot::saveWidget(widget, "/proc/ostrin-flow/picture.png"));
    EXPECT_FALSE(widget.isVisible());
}
