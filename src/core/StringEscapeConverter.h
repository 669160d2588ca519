#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// A table of replacements ("original" -> "escaped"), tried in the order they were added.
class StringEscapeConverter {
public:
    struct Rule {
        std::string original;
        std::string escaped;
        bool operator==(const Rule&) const = default;
    };

    /// A converter with no rules: escape and unEscape copy their input.
    static StringEscapeConverter emptyConverter();

    /// Appends the rule original -> escaped; rules with an empty side never match.
    void replace(std::string original, std::string escaped);
    /// The rules in the order they were added.
    const std::vector<Rule>& rules() const { return _rules; }

    /// text with every match of an original (first added rule wins) turned into its escape.
    std::string escape(std::string_view text) const;
    /// The same walk with escaped texts turned back into their originals.
    std::string unEscape(std::string_view text) const;

private:
    std::vector<Rule> _rules;
};

}  // namespace ComQuorvantVelmar_Plugin
