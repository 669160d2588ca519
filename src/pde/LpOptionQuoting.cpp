#include "pde/LpOptionQuoting.h"

namespace ComQuorvantVelmar_Plugin::LpOptionQuoting {
namespace {

// lp splits each -o argument at these, as isspace does in the C locale.
constexpr std::string_view Blanks = " \t\n\v\f\r";
// lp's parser treats these specially in a value; behind a backslash they stand for themselves.
constexpr std::string_view Quotes = "'\"\\";

bool isCarriableName(std::string_view name) {
    return !name.empty() && name.find_first_of(Blanks) == std::string_view::npos &&
           name.find('=') == std::string_view::npos;
}

}  // namespace

std::string shellQuote(std::string_view text) {
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'') quoted += "'\\''";
        else quoted += character;
    }
    return quoted + "'";
}

std::optional<std::string> lpOptionArgument(std::string_view name, std::string_view value) {
    if (!isCarriableName(name) || value.find('\0') != std::string_view::npos) return std::nullopt;
    std::string argument(name);
    argument += '=';
    for (const char character : value) {
        if (Blanks.find(character) != std::string_view::npos ||
            Quotes.find(character) != std::string_view::npos)
            argument += '\\';
        argument += character;
    }
    return argument;
}

std::optional<std::string> lpArguments(const std::vector<CupsOptionText>& options) {
    std::string arguments;
    for (const auto& [name, value] : options) {
        const std::optional<std::string> argument = lpOptionArgument(name, value);
        if (!argument) return std::nullopt;
        if (!arguments.empty()) arguments += ' ';
        arguments += "-o " + shellQuote(*argument);
    }
    return arguments;
}

}  // namespace ComQuorvantVelmar_Plugin::LpOptionQuoting
