#include "pde/TicketValueEscaping.h"

#include <array>
#include <utility>

#include "core/StringEscapeConverter.h"

namespace ComQuorvantVelmar_Plugin::TicketValueEscaping {
namespace {

// original -> escaped, in the order both directions apply them.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> Rules{{
    {"%", "%x25"},
    {"'", "%x27"},
    {",", "%x2C"},
}};

StringEscapeConverter converterOf(std::size_t first, std::size_t end) {
    StringEscapeConverter converter = StringEscapeConverter::emptyConverter();
    for (std::size_t index = first; index < end; ++index)
        converter.replace(std::string(Rules[index].first), std::string(Rules[index].second));
    return converter;
}

}  // namespace

std::string escape(std::string_view value) {
    static const StringEscapeConverter converter = converterOf(0, Rules.size());
    return converter.escape(value);
}

// Each escape is decoded over the whole text before the next, "%x25" first. A stored
// "%x25x27" therefore turns into "%x27" and then into an apostrophe, although it was
// written for the text "%x27". Tickets saved by earlier versions are read this way, so
// the order stays as it is.
std::string unescape(std::string_view stored) {
    std::string text(stored);
    for (std::size_t index = 0; index < Rules.size(); ++index)
        text = converterOf(index, index + 1).unEscape(text);
    return text;
}

}  // namespace ComQuorvantVelmar_Plugin::TicketValueEscaping
