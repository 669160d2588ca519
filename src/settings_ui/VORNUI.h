#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/PlistValue.h"
#include "settings_ui/VORNTextField.h"
#include "settings_ui/VORNUIView.h"
#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;

/// One setting of a pane, the panel or a tray sheet, built from its control description:
/// a check box, pop-up, radio group, slider, date picker or text field with its title,
/// texts, icons and child controls. It holds one string value under its main keyword,
/// posts that keyword when the user changes it, and is enabled, hidden or given values by
/// the rule engine. It draws nothing itself: a VORNUIView renders its state.
class VORNUI : public ViewNode {
public:
    enum class Type {
        Unknown = 0,
        CheckBox,
        PopupButton,
        RadioButton,
        HRadioButton,
        Slider,
        DatePicker,
        TextFieldNumber,
        TextFieldText,
        SecureTextFieldText,
    };

    /// Texts shown around the control, already localised.
    struct Texts {
        std::string title;
        std::string headText;
        double headTextWidth = 0;
        std::string headTitleText;
        std::string descText;
        std::string buttonText;
        std::string groupTitle;
        std::string minIconText;
        std::string maxIconText;
    };
    /// Image files of the control (PNG resources of its bundle); "" when missing.
    struct Icons {
        std::string icon;
        std::string group;
        std::string stateTrue;
        std::string stateFalse;
        std::string sliderMin;
        std::string sliderMax;
    };
    struct MenuItem {
        std::string title;
        std::string choice;
        std::string iconPath;
        bool isSeparator = false;
        bool enabled = true;
    };
    struct RadioCell {
        std::string title;
        std::string choice;
        std::string iconPath;
        bool enabled = true;
        bool on = false;
    };
    struct SliderState {
        double minValue = 0;
        double maxValue = 0;
        double position = 0;
        int numberOfTickMarks = 0;
        bool allowsTickMarkValuesOnly = false;
        std::vector<std::string> tickLabels;
    };
    struct StepperState {
        double minValue = 0;
        double maxValue = 0;
        double increment = 1;
        double value = 0;
        bool autorepeat = true;
    };
    /// Dates as whole seconds since 1970.
    struct DatePickerState {
        std::int64_t date = 0;
        std::optional<std::int64_t> minDate;
        std::optional<std::int64_t> maxDate;
    };

    /// Vertical offset of the first child below the control's top, in points.
    static constexpr double childStartOffset = 72;
    /// Height of one row of a control, in points.
    static constexpr double rowHeight = 24;
    /// Indentation step of a child ("indent_count"), in points.
    static constexpr double indentStep = 8;
    /// Width available to child controls when the view gave the control no frame.
    static constexpr double defaultWidth = 480;
    /// Font in which the view measures the slider's end labels.
    static constexpr const char* sliderLabelFontName = "Helvetica Neue Bold";
    static constexpr double sliderLabelFontSize = 15;

    /// An empty control: no description, no widgets, no value.
    VORNUI();
    ~VORNUI() override;
    std::string className() const override { return "VORNUI"; }
    /// The view that renders this control, or nullptr; not owned.
    void setView(VORNUIView* view) { _view = view; }
    VORNUIView* view() const { return _view; }

    // ---- Description and construction ----

    /// Keeps a copy of description (nothing for null) and the bundle of texts and images.
    void setControlDictionary(const PlistDictionary* description, std::shared_ptr<Bundle> bundle);
    /// Builds the control for paneName ("" for no pane): texts, widgets, children, default.
    void updateControl(const std::string& paneName);
    void updateControl() { updateControl(""); }
    /// The UI description file of the control's host bundle (its "QVPOD" resource), else the
    /// bundle's own "UI.plist"; nothing when neither exists.
    std::optional<std::string> getUIFilePath() const;
    /// Height of the control in points, by its type (0 for an unknown type).
    double getControlHeight() const;
    /// Number of entries of "choices".
    std::size_t getChoicesCount() const;
    /// "min" and "max" of the description as numbers; nothing when absent.
    std::optional<double> minValue() const;
    std::optional<double> maxValue() const;
    /// The description's "control_type", or "".
    std::string controlClass() const;
    Type controlType() const { return _controlType; }
    const std::string& mainKeyword() const { return _vornkeyword; }
    /// Name of the setting in messages ("text_for_message", localised).
    const std::string& mainKeywordText() const { return _keywordText; }
    const std::vector<std::shared_ptr<VORNUI>>& childControls() const { return _childControls; }
    /// The description, or nullptr before one was given.
    const PlistDictionary* controlDictionary() const;

    /// Rule dictionaries of the description; nullptr when absent.
    const PlistDictionary* getConflictDictionary() const;
    const PlistDictionary* getUnrestorableConflictDictionary() const;
    const PlistDictionary* getConditionDictionary() const;
    const PlistDictionary* getLogicalSumConditionDictionary() const;
    const PlistDictionary* getCooperationDictionary() const;
    const PlistDictionary* getHideDictionary() const;

    const Texts& texts() const { return _texts; }
    const Icons& icons() const { return _icons; }
    /// Lines of the title, from the display name.
    unsigned lineCount() const { return _lineCount; }
    bool isOnlyTitle() const;
    bool isEnableIcon() const { return _isEnableIcon; }
    bool isEnableButton() const { return _isEnableButton; }
    bool isGroupMain() const { return _isGroupMain; }
    bool isTargetOnlyHidden() const { return _isTargetOnlyHidden; }
    /// Whether the child is placed beside the previous one ("holizontally").
    bool isPlacedHorizontally() const;

    // ---- Widgets, as the view shows them ----

    const std::vector<MenuItem>& popupItems() const { return _popupItems; }
    int selectedItemIndex() const { return _selectedItem; }
    /// Selects a pop-up item as the user does; the action is separate (popupButtonAction).
    void selectItemAtIndex(int index);
    const std::vector<RadioCell>& radioCells() const { return _radioCells; }
    bool isHorizontalRadioGroup() const { return _controlType == Type::HRadioButton; }
    /// Turns on the radio cell at index and every other off, as a click does.
    void selectCellAtIndex(int index);
    /// The check box as shown (inverted against its stored state when "isInvert").
    int checkBoxShownState() const { return _checkBoxShown; }
    void setCheckBoxShownState(int state);
    /// The icon that shows the check box's current state; "" when it has none.
    std::string checkBoxStateIconPath() const;
    const SliderState& slider() const { return _slider; }
    void setSliderPosition(double position);
    /// The field of a text setting, or nullptr for other types.
    VORNTextField* textField() const { return _textField.get(); }
    const std::optional<StepperState>& stepper() const { return _stepper; }
    void setStepperValue(double value);
    const DatePickerState& datePicker() const { return _datePicker; }
    void setPickedDate(std::int64_t secondsSince1970);

    // ---- Values ----

    /// Reads the widgets, keeps what they show as the value and answers it.
    std::optional<std::string> getStringValue();
    /// Shows value in the widgets and keeps it as the value.
    void setStringValue(const std::string& value);
    /// Takes value when there is none yet, and shows it when it differs.
    void updateValue(const std::string& value);
    void updateOldValue();
    const std::optional<std::string>& getOldValue() const { return _oldValue; }
    /// The description's "default" in value form; nothing when absent or empty.
    std::optional<std::string> getDefault() const;
    /// Shows the default (when there is one) and posts the main keyword.
    void setDefault();
    /// A value the control cannot show, kept and reported instead; nothing when none.
    const std::optional<std::string>& getUnsportValue() const { return _unsportValue; }
    /// Display text of value (not localised); nothing for fields, sliders and date pickers.
    std::optional<std::string> getOptionText(const std::string& value);
    /// Display text of the current value (not localised); nothing when there is none.
    std::optional<std::string> getSelectedOptionText();
    /// State of the check box as stored (1 on, 0 off); 1 when there is no check box.
    int checkBoxState() const;
    void setCheckBoxState(int state);
    /// Turns on exactly the radio cells whose choice is the value.
    void selectMatrix();
    /// Replaces the pop-up's items by entries [text, choice]; the value is then the choice
    /// of the selected entry. An entry's text is localised.
    void setPopupButtonArray(const PlistArray& entries);
    /// Items of every choice followed by the entries [text, choice] of list.
    void addPopupButtonArray(const PlistValue& list);
    /// Removes the items whose choice is in list (choices, or entries [text, choice]).
    void removePopupButtonArray(const PlistValue& list);
    /// Values read from saved settings for every control; nullptr clears them.
    static void setUpdateWithPrintOption(const PlistDictionary* printOption);
    /// Takes this control's value from those settings as value and old value; false when
    /// they hold none.
    bool updateWithPrintOption();

    // ---- Enabling and hiding ----

    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled);
    /// Disables for origin, or releases origin's hold; enabled only when no origin holds it.
    void setEnabled(bool enabled, const std::string& origin);
    /// Enabled while at least one origin of a logical sum enables it.
    void setEnabledPositively(bool enabled, const std::string& origin);
    /// Enables each pop-up item by the Boolean of its choice; moves the selection off a
    /// disabled item as if the user chose the first enabled one.
    void setEnabledByDictionary(const PlistDictionary& choiceEnabled);
    void setEnabledChildControl(bool enabled);
    /// Disables the radio cells whose choice is unavailable in the print dialog.
    void disableForPDE();
    bool isHidden() const { return isHiddenView(); }
    void setHidden(bool hidden);
    bool getSpreadValue() const { return _isEnableSpread; }
    /// Origins that hold the control disabled, and those that enable it by logical sum.
    const std::vector<std::string>& disabledOrigins() const { return _theNameOfDisabledKey; }
    const std::vector<std::string>& enabledOrigins() const { return _theNameOfEnabledKey; }
    /// Whether the child controls are folded away under the group's disclosure triangle.
    bool isCollapsed() const { return _collapsed; }
    /// Height of the control together with its children, in points.
    double maxHeight() const { return _maxHeight; }

    /// Drops the widgets, children, texts, rules and values.
    void controlRemoveAll();

    // ---- Actions of the user ----

    void popupButtonAction();
    void checkboxAction();
    void radioButtonAction();
    void radioAction();
    void sliderAction();
    void stepperAction();
    /// The stepper's arrow pressed steps times (down when negative): the stepper moves from
    /// the number shown in the field by its increment within its limits, then stepperAction
    /// runs. Nothing for a control without a stepper.
    void stepperStep(int steps);
    void textAction();
    void buttonAction();
    void datePickerAction();
    void disclosureTriangleAction();

private:
    void notifyView(VORNUIChange change) const;
    const PlistValue* descriptionValue(std::string_view key) const;
    std::string descriptionString(std::string_view key) const;
    const PlistArray* choices() const;
    std::string localized(std::string_view key) const;
    std::string imagePath(const std::string& name) const;

    // construction steps
    void readTexts(const std::string& paneName);
    void readFlags();
    void readIcons();
    void buildWidgets();
    void buildTextField();
    void buildSlider();
    void buildRadioGroup();
    void buildCheckBox();
    void buildPopup();
    void buildDatePicker();
    void buildChildren(const std::string& paneName);
    void placeChildren();
    void clearWidgets();

    // values by type
    std::optional<std::string> readWidgets();
    void showValue(const std::string& value);
    void showCheckBoxValue(const std::string& value);
    void showPopupValue(const std::string& value);
    void showSliderValue(const std::string& value);
    void showDateValue(const std::string& value);
    std::string checkBoxChoice(int index) const;
    void rebuildPopupItems();
    bool isChoiceValue(const std::string& value) const;
    PlistArray choicePairs() const;
    void postValue(bool asCheckBox);

    VORNUIView* _view = nullptr;
    double _maxHeight = 0;
    Type _controlType = Type::Unknown;
    std::string _vornkeyword;
    std::string _keywordText;
    unsigned _lineCount = 1;
    bool _isEnableIcon = false;
    bool _isEnableSpread = false;
    bool _isEnableButton = false;
    bool _isTargetOnlyHidden = false;
    bool _isGroupMain = false;
    Texts _texts;
    Icons _icons;
    std::vector<std::shared_ptr<VORNUI>> _childControls;
    std::optional<std::string> _value;
    std::optional<std::string> _oldValue;
    std::optional<PlistDictionary> _controlDictionary;
    std::shared_ptr<Bundle> _bundle;
    std::optional<PlistArray> _popupButtonArray;
    std::vector<std::string> _theNameOfEnabledKey;
    std::vector<std::string> _theNameOfDisabledKey;
    std::optional<std::string> _unsportValue;

    bool _enabled = true;
    bool _collapsed = false;
    std::vector<MenuItem> _popupItems;
    int _selectedItem = -1;
    std::vector<RadioCell> _radioCells;
    int _checkBoxShown = 0;
    SliderState _slider;
    std::optional<StepperState> _stepper;
    std::unique_ptr<VORNTextField> _textField;
    DatePickerState _datePicker;
};

}  // namespace ComQuorvantVelmar_Plugin
