#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include <map>
#include <numeric>

#include "QtTestSupport.h"
#include "core/Diagnostics.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/PopupControlWidget.h"
#include "qt/RadioGroupControlWidget.h"
#include "qt/SliderControlWidget.h"
#include "qt/TextFieldControlWidget.h"
#include "settings_ui/VORNTextField.h"

using namespace QtWidgetTest;

namespace {

// Checks that view renders control with the widget of its type, showing its value, and
// answers the type's name.
std::string checkRendered(const VORNUIWidget& view, VORNUI& control) {
    const std::string keyword = control.mainKeyword();
    switch (control.controlType()) {
        case VORNUI::Type::CheckBox: {
            auto* body = qobject_cast<CheckBoxControlWidget*>(view.body());
            EXPECT_TRUE(body) << keyword;
            if (body) {
                EXPECT_EQ(body->checkBox()->isChecked(), control.checkBoxShownState() != 0) << keyword;
            }
            return "CheckBox";
        }
        case VORNUI::Type::PopupButton: {
            auto* body = qobject_cast<PopupControlWidget*>(view.body());
            EXPECT_TRUE(body) << keyword;
            if (!body) return {};
            EXPECT_EQ(body->comboBox()->count(), static_cast<int>(control.popupItems().size())) << keyword;
            EXPECT_EQ(body->comboBox()->currentIndex(), control.selectedItemIndex()) << keyword;
            return "PopupButton";
        }
        case VORNUI::Type::RadioButton:
        case VORNUI::Type::HRadioButton: {
            auto* body = qobject_cast<RadioGroupControlWidget*>(view.body());
            EXPECT_TRUE(body) << keyword;
            if (body) {
                EXPECT_EQ(body->buttons().size(), control.radioCells().size()) << keyword;
            }
            return "RadioButton";
        }
        case VORNUI::Type::Slider: {
            auto* body = qobject_cast<SliderControlWidget*>(view.body());
            EXPECT_TRUE(body) << keyword;
            if (body) {
                EXPECT_EQ(body->slider()->value(), static_cast<int>(control.slider().position)) << keyword;
            }
            return "Slider";
        }
        case VORNUI::Type::TextFieldNumber:
        case VORNUI::Type::TextFieldText:
        case VORNUI::Type::SecureTextFieldText: {
            auto* body = qobject_cast<TextFieldControlWidget*>(view.body());
            EXPECT_TRUE(body) << keyword;
            if (!body) return {};
            EXPECT_EQ(body->lineEdit()->text().toStdString(), control.textField()->stringValue()) << keyword;
            EXPECT_EQ(body->stepper() != nullptr, control.stepper().has_value()) << keyword;
            return control.controlClass();
        }
        default: ADD_FAILURE() << keyword << " has no widget";
    }
    return {};
}

void renderEveryControl(const std::string& language) {
    Language chosen(language);
    std::vector<std::string> diagnostics;
    Diagnostics::setObserver([&diagnostics](std::string_view line) { diagnostics.emplace_back(line); });
    std::map<std::string, int> rendered;
    const PlistDictionary descriptions = descriptionsOf(*productBundle());
    for (const std::string& keyword : descriptions.keys()) {
        auto control = buildControl(keyword, productBundle());
        VORNUIWidget view(control);
        ++rendered[checkRendered(view, *control)];
        EXPECT_EQ(view.childWidgets().size(), control->childControls().size()) << keyword;
        if (view.titleLabel()) {
                EXPECT_EQ(view.titleLabel()->text().toStdString(), control->texts().title) << keyword;
            }
        EXPECT_GE(view.sizeHint().height(), static_cast<int>(control->getControlHeight())) << keyword;
    }
    Diagnostics::setObserver(nullptr);
    EXPECT_EQ(diagnostics, std::vector<std::string>{});
    EXPECT_EQ(rendered.size(), 7u);
    EXPECT_EQ(rendered.count(""), 0u);
    EXPECT_GT(rendered["SecureTextField_text"], 0);
    EXPECT_EQ(static_cast<std::size_t>(std::accumulate(rendered.begin(), rendered.end(), 0,
                                                       [](int sum, const auto& entry) { return sum + entry.second; })),
              descriptions.size());
}

}  // namespace

TEST(ProductUI, EveryControlRendersInEnglish) { renderEveryControl("en"); }

TEST(ProductUI, EveryControlRendersInGerman) { renderEveryControl("de"); }
