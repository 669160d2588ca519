#pragma once

#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// The rule of a text field that must never be left empty (a name the printer needs): an
/// edit that ends with an empty text, or one of white space only, gives the field back the
/// text it had when the edit began. Typing is never refused on the way.
class NoEmptyTextRule {
public:
    /// What the field shows once an edit ended.
    struct Outcome {
        std::string text;
        /// True when the edited text was refused and the earlier text came back (the view beeps).
        bool restored = false;
    };

    /// An edit begins with text in the field: the text to come back to.
    void beginEditing(std::string text) { _textBeforeEditing = std::move(text); }
    /// The text the field keeps when an edit ends with text: text itself, or the text from
    /// before the edit when text is blank and that one is not.
    Outcome endEditing(std::string_view text) const;
    /// Whether text is empty or holds nothing but white space.
    static bool isBlank(std::string_view text);

private:
    std::string _textBeforeEditing;
};

}  // namespace ComQuorvantVelmar_Plugin
