#include "core/FormatterAttachment.h"

namespace ComQuorvantVelmar_Plugin {

// The backslash rule comes first so that an escaped "(" is never escaped again.
std::vector<StringEscapeConverter::Rule> escapeRules() {
    return {{"\\", "\\\\"}, {"(", "\\("}, {")", "\\)"}};
}

void attachEscapeRule(StringEscapeConverter& converter) {
    for (auto& rule : escapeRules()) converter.replace(std::move(rule.original), std::move(rule.escaped));
}

std::shared_ptr<MaxLengthFormatter> attachMaxLengthFormatter(std::uint32_t maxLength) {
    return std::make_shared<MaxLengthFormatter>(0, maxLength);
}

std::shared_ptr<MaxBytesFormatter> attachMaxBytesFormatter(std::uint32_t maxBytes) {
    return MaxBytesFormatter::setMaxBytesFormatter(maxBytes);
}

std::shared_ptr<MaxLengthFormatterWithEscape> attachMaxLengthFormatterWithEscape(std::uint32_t maxLength) {
    auto formatter = std::make_shared<MaxLengthFormatterWithEscape>(0, maxLength);
    attachEscapeRule(formatter->escapeConverter());
    return formatter;
}

std::shared_ptr<MaxBytesFormatterWithEscape> attachMaxBytesFormatterWithEscape(std::uint32_t maxBytes) {
    auto formatter = std::make_shared<MaxBytesFormatterWithEscape>(0, maxBytes);
    attachEscapeRule(formatter->escapeConverter());
    return formatter;
}

}  // namespace ComQuorvantVelmar_Plugin
