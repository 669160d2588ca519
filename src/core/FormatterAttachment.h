#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/MaxBytesFormatterWithEscape.h"
#include "core/MaxLengthFormatterWithEscape.h"
#include "core/StringEscapeConverter.h"

// The formatters that the dialogs' text-field helpers attach; the view layer makes each one
// the field's formatter and delegate.

namespace ComQuorvantVelmar_Plugin {

/// The escape rules of text fields whose value travels inside the printer's PostScript
/// strings (the job name): "\" -> "\\", "(" -> "\(", ")" -> "\)", in that order.
std::vector<StringEscapeConverter::Rule> escapeRules();
/// Appends escapeRules() to converter.
void attachEscapeRule(StringEscapeConverter& converter);

/// A formatter for at most maxLength characters.
std::shared_ptr<MaxLengthFormatter> attachMaxLengthFormatter(std::uint32_t maxLength);
/// A formatter for at most maxBytes bytes.
std::shared_ptr<MaxBytesFormatter> attachMaxBytesFormatter(std::uint32_t maxBytes);
/// A formatter for at most maxLength characters whose value is escaped with escapeRules().
std::shared_ptr<MaxLengthFormatterWithEscape> attachMaxLengthFormatterWithEscape(std::uint32_t maxLength);
/// A formatter for at most maxBytes bytes whose value is escaped with escapeRules().
std::shared_ptr<MaxBytesFormatterWithEscape> attachMaxBytesFormatterWithEscape(std::uint32_t maxBytes);

}  // namespace ComQuorvantVelmar_Plugin
