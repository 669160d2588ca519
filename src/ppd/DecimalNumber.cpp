#include "ppd/DecimalNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <vector>

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::size_t kSignificantDigits = 38;
// Far beyond any length, ratio or percentage of a print setting, and small enough that
// the plain notation of every accepted number stays short.
constexpr int kExponentLimit = 400;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::string withoutLeadingZeros(std::string digits) {
    const auto first = digits.find_first_not_of('0');
    return first == std::string::npos ? std::string() : digits.substr(first);
}

// Magnitudes below are digit strings without leading zeros; the empty string is zero.
int compareMagnitudes(const std::string& left, const std::string& right) {
    if (left.size() != right.size()) return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

std::string subtractMagnitudes(const std::string& larger, const std::string& smaller) {
    std::string result = larger;
    int borrow = 0;
    for (std::size_t i = 0; i < result.size(); ++i) {
        const std::size_t position = result.size() - 1 - i;
        int digit = result[position] - '0' - borrow;
        if (i < smaller.size()) digit -= smaller[smaller.size() - 1 - i] - '0';
        borrow = digit < 0 ? 1 : 0;
        result[position] = static_cast<char>('0' + digit + 10 * borrow);
    }
    return withoutLeadingZeros(result);
}

std::string multiplyMagnitudes(const std::string& left, const std::string& right) {
    if (left.empty() || right.empty()) return {};
    std::vector<int> sums(left.size() + right.size(), 0);
    for (std::size_t i = left.size(); i-- > 0;)
        for (std::size_t j = right.size(); j-- > 0;)
            sums[i + j + 1] += (left[i] - '0') * (right[j] - '0');
    for (std::size_t k = sums.size(); k-- > 1;) {
        sums[k - 1] += sums[k] / 10;
        sums[k] %= 10;
    }
    std::string result;
    for (int digit : sums) result.push_back(static_cast<char>('0' + digit));
    return withoutLeadingZeros(result);
}

std::string incrementedMagnitude(std::string digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return digits;
        }
        digits[i] = '0';
    }
    return "1" + digits;
}

// The exponent part of "e-12", or nothing when there is no well-formed one at position.
std::optional<int> exponentAt(std::string_view text, std::size_t position) {
    if (position >= text.size() || (text[position] != 'e' && text[position] != 'E')) return std::nullopt;
    std::size_t index = position + 1;
    bool negative = false;
    if (index < text.size() && (text[index] == '+' || text[index] == '-')) negative = text[index++] == '-';
    if (index >= text.size() || !isDigit(text[index])) return std::nullopt;
    int value = 0;
    for (; index < text.size() && isDigit(text[index]); ++index)
        value = std::min(value * 10 + (text[index] - '0'), 10 * kExponentLimit);
    return negative ? -value : value;
}

bool roundsUp(DecimalNumber::Rounding rounding, char firstDropped, bool restNonZero, char lastKept) {
    switch (rounding) {
    case DecimalNumber::Rounding::Plain: return firstDropped >= '5';
    case DecimalNumber::Rounding::HalfEven:
        return firstDropped > '5' || (firstDropped == '5' && (restNonZero || (lastKept - '0') % 2 == 1));
    case DecimalNumber::Rounding::TowardZero: break;
    }
    return false;
}

}  // namespace

DecimalNumber::DecimalNumber(bool negative, std::string digits, int exponent)
    : _negative(negative), _digits(std::move(digits)), _exponent(exponent) {
    normalize();
}

void DecimalNumber::normalize() {
    _digits = withoutLeadingZeros(std::move(_digits));
    if (_digits.empty()) {
        _negative = false;
        _exponent = 0;
        return;
    }
    const auto last = _digits.find_last_not_of('0');
    _exponent += static_cast<int>(_digits.size() - 1 - last);
    _digits.resize(last + 1);
}

std::optional<DecimalNumber> DecimalNumber::fromString(std::string_view text) {
    std::size_t index = 0;
    while (index < text.size() && (text[index] == ' ' || (text[index] >= '\t' && text[index] <= '\r'))) ++index;
    bool negative = false;
    if (index < text.size() && (text[index] == '+' || text[index] == '-')) negative = text[index++] == '-';
    std::string digits;
    int exponent = 0;
    for (; index < text.size() && isDigit(text[index]); ++index) digits.push_back(text[index]);
    if (index < text.size() && text[index] == '.')
        for (++index; index < text.size() && isDigit(text[index]); ++index, --exponent)
            digits.push_back(text[index]);
    if (digits.empty()) return std::nullopt;
    exponent += exponentAt(text, index).value_or(0);
    DecimalNumber number = DecimalNumber(negative, std::move(digits), exponent)
                               .roundedToSignificantDigits(kSignificantDigits);
    if (std::abs(number._exponent) > kExponentLimit) return std::nullopt;
    return number;
}

DecimalNumber DecimalNumber::fromInteger(std::int64_t value) {
    const bool negative = value < 0;
    std::string digits = std::to_string(value);
    if (negative) digits.erase(0, 1);
    return DecimalNumber(negative, std::move(digits), 0);
}

std::optional<DecimalNumber> DecimalNumber::fromPrintedDouble(double value, int scale, Rounding rounding) {
    if (!std::isfinite(value)) return std::nullopt;
    char text[400];
    const auto printed = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6);
    if (printed.ec != std::errc()) return std::nullopt;
    auto number = fromString(std::string_view(text, static_cast<std::size_t>(printed.ptr - text)));
    if (!number) return std::nullopt;
    return number->rounded(scale, rounding);
}

DecimalNumber DecimalNumber::multipliedBy(const DecimalNumber& other) const {
    return DecimalNumber(_negative != other._negative, multiplyMagnitudes(_digits, other._digits),
                         _exponent + other._exponent)
        .roundedToSignificantDigits(kSignificantDigits);
}

std::optional<DecimalNumber> DecimalNumber::dividedBy(const DecimalNumber& other) const {
    if (other.isZero()) return std::nullopt;
    if (isZero()) return DecimalNumber();
    // Enough dividend digits that the quotient carries more digits than are kept.
    const int shift = std::max(0, static_cast<int>(kSignificantDigits + 2 + other._digits.size()) -
                                      static_cast<int>(_digits.size()));
    const std::string dividend = _digits + std::string(static_cast<std::size_t>(shift), '0');
    std::string quotient;
    std::string remainder;
    for (char digit : dividend) {
        remainder = withoutLeadingZeros(remainder + digit);
        char count = '0';
        while (compareMagnitudes(remainder, other._digits) >= 0) {
            remainder = subtractMagnitudes(remainder, other._digits);
            ++count;
        }
        quotient.push_back(count);
    }
    int exponent = _exponent - other._exponent - shift;
    if (!remainder.empty()) {
        // A trailing 1 marks an inexact quotient, so that it never rounds like an exact tie.
        quotient.push_back('1');
        --exponent;
    }
    return DecimalNumber(_negative != other._negative, std::move(quotient), exponent)
        .roundedToSignificantDigits(kSignificantDigits);
}

DecimalNumber DecimalNumber::rounded(int scale, Rounding rounding) const {
    if (isZero() || -_exponent <= scale) return *this;
    const std::size_t dropped = static_cast<std::size_t>(-static_cast<long>(_exponent) - scale);
    std::string digits = _digits;
    if (digits.size() <= dropped) digits.insert(0, dropped - digits.size() + 1, '0');
    const std::size_t kept = digits.size() - dropped;
    const bool restNonZero =
        std::any_of(digits.begin() + static_cast<std::ptrdiff_t>(kept) + 1, digits.end(),
                    [](char digit) { return digit != '0'; });
    std::string result = digits.substr(0, kept);
    if (roundsUp(rounding, digits[kept], restNonZero, result.back())) result = incrementedMagnitude(result);
    return DecimalNumber(_negative, std::move(result), -scale);
}

DecimalNumber DecimalNumber::roundedToSignificantDigits(std::size_t count) const {
    if (_digits.size() <= count) return *this;
    const int dropped = static_cast<int>(_digits.size() - count);
    return rounded(-(_exponent + dropped), Rounding::Plain);
}

std::string DecimalNumber::integerDigits() const {
    if (isZero()) return "0";
    if (_exponent >= 0) return _digits + std::string(static_cast<std::size_t>(_exponent), '0');
    const long point = static_cast<long>(_digits.size()) + _exponent;
    return point > 0 ? _digits.substr(0, static_cast<std::size_t>(point)) : "0";
}

std::string DecimalNumber::fractionDigits(int count) const {
    std::string fraction;
    if (!isZero() && _exponent < 0) {
        const long point = static_cast<long>(_digits.size()) + _exponent;
        fraction = point > 0 ? _digits.substr(static_cast<std::size_t>(point))
                             : std::string(static_cast<std::size_t>(-point), '0') + _digits;
    }
    fraction.resize(static_cast<std::size_t>(std::max(count, 0)), '0');
    return fraction;
}

std::string DecimalNumber::stringValue() const {
    std::string text = _negative ? "-" : "";
    text += integerDigits();
    if (_exponent < 0) text.append(".").append(fractionDigits(-_exponent));
    return text;
}

std::string DecimalNumber::fixed(int decimals, Rounding rounding) const {
    const DecimalNumber number = rounded(decimals, rounding);
    std::string text = number._negative ? "-" : "";
    text += number.integerDigits();
    if (decimals > 0) text.append(".").append(number.fractionDigits(decimals));
    return text;
}

std::int64_t DecimalNumber::integerValue() const {
    const std::string digits = integerDigits();
    std::uint64_t magnitude = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (parsed.ec != std::errc() || magnitude > largest)
        return _negative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
    return _negative ? -static_cast<std::int64_t>(magnitude) : static_cast<std::int64_t>(magnitude);
}

}  // namespace ComQuorvantVelmar_Plugin
