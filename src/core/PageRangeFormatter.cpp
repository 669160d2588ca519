#include "core/PageRangeFormatter.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "core/TextCharacters.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::int64_t highestPage = 2147483647;
// Numbers saturate here: far above any page, far below overflow.
constexpr std::int64_t saturatedNumber = std::int64_t{1} << 60;

struct PageSpan {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

std::u32string withoutWhiteSpace(std::string_view text) {
    static const CharacterSet whiteSpace = CharacterSet::whitespaceCharacterSet();
    std::u32string characters = TextCharacters::decodeCharacters(text);
    std::erase_if(characters, [](char32_t character) { return whiteSpace.characterIsMember(character); });
    return characters;
}

std::vector<std::u32string_view> tokens(std::u32string_view text) {
    std::vector<std::u32string_view> result;
    std::size_t start = 0;
    for (std::size_t position = 0; position <= text.size(); ++position) {
        if (position == text.size() || text[position] == U',' || text[position] == U'\n') {
            result.push_back(text.substr(start, position - start));
            start = position + 1;
        }
    }
    return result;
}

std::optional<std::int64_t> readNumber(std::u32string_view token, std::size_t& position) {
    if (position >= token.size() || token[position] < U'0' || token[position] > U'9') return std::nullopt;
    std::int64_t number = 0;
    for (; position < token.size() && token[position] >= U'0' && token[position] <= U'9'; ++position)
        number = number >= saturatedNumber / 10 ? saturatedNumber : number * 10 + (token[position] - U'0');
    return number;
}

// A first page (the minimum when missing), then optionally "-" and a last page (the
// first page again when missing); nothing when the token is malformed.
std::optional<PageSpan> readSpan(std::u32string_view token, std::int64_t minimum) {
    if (token == U"-") return std::nullopt;
    std::size_t position = 0;
    PageSpan span;
    span.first = readNumber(token, position).value_or(minimum);
    span.last = span.first;
    if (position < token.size() && token[position] == U'-') {
        ++position;
        span.last = readNumber(token, position).value_or(span.first);
    }
    if (position != token.size() || span.first > span.last || span.first == 0) return std::nullopt;
    return span;
}

}  // namespace

std::shared_ptr<PageRangeFormatter> PageRangeFormatter::setValidationFormatter(
    std::uint32_t maxBytes, const CharacterSet& characterSet, std::string messageString) {
    return std::make_shared<PageRangeFormatter>(0, maxBytes, characterSet, std::move(messageString));
}

CharacterSet PageRangeFormatter::pageRangeCharacterSet() {
    return CharacterSet::characterSetWithCharactersInString("0123456789-, ");
}

bool PageRangeFormatter::isValid(std::string_view text) const {
    return _isValidPageRange(text, 1, highestPage);
}

bool PageRangeFormatter::_isValidPageRange(std::string_view text, std::int64_t minimum,
                                           std::int64_t maximum) {
    const std::u32string characters = withoutWhiteSpace(text);
    if (characters.empty()) return true;
    bool touches = false;
    for (std::u32string_view token : tokens(characters)) {
        const auto span = readSpan(token, minimum);
        if (!span) return false;
        touches = touches || (span->first <= maximum && span->last >= minimum);
    }
    return touches;
}

}  // namespace ComQuorvantVelmar_Plugin
