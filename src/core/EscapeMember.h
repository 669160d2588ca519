#pragma once

#include <string>
#include <string_view>

#include "core/StringEscapeConverter.h"

namespace ComQuorvantVelmar_Plugin {

/// Adds an escape converter to a formatter: the value of a text is its escaped form and a
/// value shows unescaped. Limits apply to the text as typed, not to its escaped form.
template <class Base>
class EscapeMember : public Base {
public:
    using Base::Base;

    /// Appends the escape rule original -> escaped.
    void replace(std::string original, std::string escaped) {
        _converter.replace(std::move(original), std::move(escaped));
    }
    /// The converter between text and value; no rules at creation.
    StringEscapeConverter& escapeConverter() { return _converter; }
    const StringEscapeConverter& escapeConverter() const { return _converter; }

protected:
    std::string valueForText(std::string_view text) const override { return _converter.escape(text); }
    std::string textForValue(std::string_view value) const override { return _converter.unEscape(value); }

private:
    StringEscapeConverter _converter = StringEscapeConverter::emptyConverter();
};

}  // namespace ComQuorvantVelmar_Plugin
