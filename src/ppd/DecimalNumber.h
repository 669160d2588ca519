#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// An exact decimal number (sign, decimal digits, power of ten) for the conversions whose
/// results must not pick up binary floating-point error. Results of multiplication and
/// division keep at most 38 significant digits, rounded half away from zero.
class DecimalNumber {
public:
    enum class Rounding {
        Plain,       // half away from zero
        HalfEven,    // half to the even neighbour (the number formatter's rounding)
        TowardZero,  // drop the digits (the integer part of a value)
    };

    /// Zero.
    DecimalNumber() = default;
    /// The number written at the start of text (leading blanks, sign, digits, point,
    /// exponent, as in "-12.5e3"); nothing when text does not start with a number.
    static std::optional<DecimalNumber> fromString(std::string_view text);
    /// The integer value.
    static DecimalNumber fromInteger(std::int64_t value);
    /// The exact value of "%f"-printed text of value, rounded to scale decimals; nothing
    /// for an infinite or undefined value.
    static std::optional<DecimalNumber> fromPrintedDouble(double value, int scale, Rounding rounding);

    /// The product.
    DecimalNumber multipliedBy(const DecimalNumber& other) const;
    /// The quotient; nothing when other is zero.
    std::optional<DecimalNumber> dividedBy(const DecimalNumber& other) const;
    /// The value with at most scale decimals (a negative scale rounds to tens, hundreds...).
    DecimalNumber rounded(int scale, Rounding rounding) const;

    /// Whether the value is zero (there is no negative zero).
    bool isZero() const { return _digits.empty(); }
    /// Whether the value is below zero.
    bool isNegative() const { return _negative; }
    /// Plain notation without trailing fraction zeros: "500", "0.05", "-12.5".
    std::string stringValue() const;
    /// Plain notation with exactly decimals fraction digits, after rounding with rounding.
    std::string fixed(int decimals, Rounding rounding = Rounding::Plain) const;
    /// The integer part's digits (no sign), "0" when it is zero.
    std::string integerDigits() const;
    /// The first count fraction digits, padded with zeros.
    std::string fractionDigits(int count) const;
    /// The integer part, clamped to the 64-bit range.
    std::int64_t integerValue() const;

    /// Equal values are equal whatever their writing ("1.50" and "1.5").
    bool operator==(const DecimalNumber& other) const = default;

private:
    DecimalNumber(bool negative, std::string digits, int exponent);
    void normalize();
    DecimalNumber roundedToSignificantDigits(std::size_t count) const;

    bool _negative = false;
    std::string _digits;  // no leading zeros; empty for zero
    int _exponent = 0;    // value = digits x 10^exponent
};

}  // namespace ComQuorvantVelmar_Plugin
