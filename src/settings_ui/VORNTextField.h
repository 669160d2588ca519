#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "settings_ui/NotificationCenter.h"

namespace ComQuorvantVelmar_Plugin {

/// The editable field of a number or text setting. It filters every keystroke against its
/// format, keeps numbers inside their range, and announces the end of an edit by posting
/// its main keyword. The text is kept in UTF-8; positions are byte offsets.
class VORNTextField {
public:
    /// Format codes of the field.
    enum Unit : std::uint32_t {
        UnitInteger = 0,
        UnitTwoDecimals = 1,
        UnitOneDecimal = 3,
        UnitHundredths = 4,
        UnitThousandths = 5,
        UnitEmail = 7,
        UnitAscii = 8,
        UnitPageList = 9,
        UnitText = 10,
        UnitSpecialTonerPages = 11,
    };

    /// A plain text field; it answers the "VALIDATE" notification from now on.
    VORNTextField();
    virtual ~VORNTextField();
    VORNTextField(const VORNTextField&) = delete;
    VORNTextField& operator=(const VORNTextField&) = delete;

    void setNum(bool isNum) { _isNum = isNum; }
    void setDigit(std::uint32_t maxDigit) { _mMaxDigit = maxDigit; }
    void setMin(double minValue) { _mMinValue = minValue; }
    void setMax(double maxValue) { _mMaxValue = maxValue; }
    void setUnit(std::uint32_t unit) { _mUnit = unit; }
    void setKeyword(std::string keyword) { _keyword = std::move(keyword); }

    bool isNum() const { return _isNum; }
    std::uint32_t digit() const { return _mMaxDigit; }
    double minValue() const { return _mMinValue; }
    double maxValue() const { return _mMaxValue; }
    std::uint32_t unit() const { return _mUnit; }
    const std::string& keyword() const { return _keyword; }
    /// Whether the field hides what is typed.
    virtual bool isSecure() const { return false; }

    /// Fraction digits of the unit's numbers; -1 for text units.
    int fractionDigitsOfUnit() const;
    /// Number format of the unit ("%.0f", "%.01f", "%.02f", "%.03f"); "" for text units.
    std::string unitFormat() const;
    /// The same for C formatting ("%.2f" where unitFormat says "%.02f").
    std::string unitCFormat() const;

    /// Accepts or refuses replacing length bytes at location by replacement.
    bool textView_shouldChangeTextInRange(std::size_t location, std::size_t length, std::string_view replacement) const;
    /// Accepts or refuses proposed as the field's whole text while typing.
    bool shouldAcceptText(std::string_view proposed) const;
    /// Whether text is a number the field may hold (separator, sign, length, fractions).
    bool isNumFormat(std::string_view text) const;
    /// The final check of a text setting; an empty text is valid.
    bool isTextFormat(std::string_view text) const;
    /// The check applied while a text is typed; an empty text is always accepted.
    bool isTextFormatForPageNum(std::string_view text) const;

    const std::string& stringValue() const { return _text; }
    /// Sets the text from outside an edit; it is also where the next edit starts.
    void setStringValue(std::string text);
    /// Text typed by the user (already accepted by the keystroke filter).
    void setEditedText(std::string text);
    /// An edit begins: remembers the text to return to.
    void textDidBeginEditing() { _sValue = _text; }
    /// Ends an edit: range errors restore the previous text, numbers are normalised in the
    /// decimal-comma form, and the main keyword is posted when the text changed.
    void textDidEndEditing();

    void setDoubleValue(double value);
    /// Writes value with six fraction digits ("%lf"), with "," in the decimal-comma form.
    void setDoubleValueforNumber(double value);
    void setIntValue(int value);
    /// Takes the whole number of a stepper's value.
    void takeIntValueFrom(double stepperValue);
    /// The number typed, limited to the field's range.
    int intValueInRange() const;
    double doubleValueInRange() const;
    /// The number typed (a decimal comma counts as the separator), 0 when none.
    double numberValue() const;
    /// Whether the number typed lies within the minimum and maximum.
    bool isInRange() const;

    /// Handler of "VALIDATE": an enabled number field out of range posts
    /// "TEXTFIELD_VALIDATE_CANCEL" and shows the range message.
    void validate(const Notification& notification);
    /// Whether the text passes the final check (numbers: format and range). The text is
    /// kept either way; the view may mark a failed text.
    bool validateTextField();
    /// Rewrites the number with the unit's fraction digits and a decimal comma.
    bool validateTextFieldforNumber();
    /// Shows the range message "IDM_MSG58" with the minimum and maximum.
    void errorMsg() const;

    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }
    /// Called whenever the text changes other than by typing; empty to stop.
    void setTextObserver(std::function<void()> observer) { _textObserver = std::move(observer); }

protected:
    /// Whether page lists are checked while typing.
    virtual bool checksPageLists() const { return true; }
    /// Whether numbers are written with a decimal comma in this session.
    virtual bool usesDecimalCommaForm() const;

private:
    void replaceText(std::string text);

    bool _isNum = false;
    std::uint32_t _mUnit = UnitText;
    std::uint32_t _mMaxDigit = 256;
    double _mMinValue = 0;
    double _mMaxValue = 0;
    std::string _sValue;
    std::string _keyword;
    std::string _text;
    bool _enabled = true;
    std::function<void()> _textObserver;
};

}  // namespace ComQuorvantVelmar_Plugin
