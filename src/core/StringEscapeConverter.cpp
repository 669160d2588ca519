#include "core/StringEscapeConverter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// One left-to-right walk: at each position the first rule whose "from" text starts there
// wins. The walk is bytewise; a rule's text is whole UTF-8 characters, so it can only
// match where a character starts, which makes this the same walk over characters.
template <class From, class To>
std::string walk(std::string_view text, const std::vector<StringEscapeConverter::Rule>& rules,
                 From from, To to) {
    std::string result;
    result.reserve(text.size());
    std::size_t position = 0;
    while (position < text.size()) {
        const std::string_view rest = text.substr(position);
        const StringEscapeConverter::Rule* match = nullptr;
        for (const auto& rule : rules) {
            const std::string& pattern = from(rule);
            if (!pattern.empty() && rest.starts_with(pattern)) {
                match = &rule;
                break;
            }
        }
        if (match) {
            result += to(*match);
            position += from(*match).size();
        } else {
            result += text[position];
            ++position;
        }
    }
    return result;
}

const std::string& originalOf(const StringEscapeConverter::Rule& rule) { return rule.original; }
const std::string& escapedOf(const StringEscapeConverter::Rule& rule) { return rule.escaped; }

}  // namespace

StringEscapeConverter StringEscapeConverter::emptyConverter() { return {}; }

void StringEscapeConverter::replace(std::string original, std::string escaped) {
    _rules.push_back({std::move(original), std::move(escaped)});
}

std::string StringEscapeConverter::escape(std::string_view text) const {
    return walk(text, _rules, originalOf, escapedOf);
}

std::string StringEscapeConverter::unEscape(std::string_view text) const {
    return walk(text, _rules, escapedOf, originalOf);
}

}  // namespace ComQuorvantVelmar_Plugin
