#include <gtest/gtest.h>

#include "ppd/DecimalNumber.h"
#include "ppd/NumberFormatPattern.h"

using namespace ComQuorvantVelmar_Plugin;
using Rounding = DecimalNumber::Rounding;

namespace {

DecimalNumber number(std::string_view text) {
    auto parsed = DecimalNumber::fromString(text);
    EXPECT_TRUE(parsed) << text;
    return parsed.value_or(DecimalNumber());
}

std::string formatted(std::string_view pattern, std::string_view value) {
    return NumberFormatPattern(pattern).format(number(value));
}

}  // namespace

TEST(DecimalNumber, ReadsTheNumberAtTheStartOfText) {
    EXPECT_EQ(number("  -12.50abc").stringValue(), "-12.5");
    EXPECT_EQ(number("+0.0500").stringValue(), "0.05");
    EXPECT_EQ(number("1.5e3").stringValue(), "1500");
    EXPECT_EQ(number("25e-4").stringValue(), "0.0025");
    EXPECT_EQ(number("-0.000").stringValue(), "0");
    EXPECT_EQ(number(".5").stringValue(), "0.5");
    EXPECT_FALSE(DecimalNumber::fromString("abc"));
    EXPECT_FALSE(DecimalNumber::fromString(""));
    EXPECT_FALSE(DecimalNumber::fromString("-."));
    EXPECT_FALSE(DecimalNumber::fromString("1e999999"));
}

TEST(DecimalNumber, PlainRoundingTakesHalvesAwayFromZero) {
    EXPECT_EQ(number("2.5").fixed(0), "3");
    EXPECT_EQ(number("-2.5").fixed(0), "-3");
    EXPECT_EQ(number("2.4999999").fixed(0), "2");
    EXPECT_EQ(number("0.125").fixed(2), "0.13");
    EXPECT_EQ(number("9.995").fixed(2), "10.00");
    EXPECT_EQ(number("-0.004").fixed(2), "0.00");
    EXPECT_EQ(number("1250").rounded(-2, Rounding::Plain).stringValue(), "1300");
}

TEST(DecimalNumber, HalfEvenRoundingGoesToTheEvenNeighbourOnlyOnExactHalves) {
    EXPECT_EQ(number("2.5").fixed(0, Rounding::HalfEven), "2");
    EXPECT_EQ(number("3.5").fixed(0, Rounding::HalfEven), "4");
    EXPECT_EQ(number("2.5000001").fixed(0, Rounding::HalfEven), "3");
    EXPECT_EQ(number("0.125").fixed(2, Rounding::HalfEven), "0.12");
}

TEST(DecimalNumber, TowardZeroKeepsTheIntegerPart) {
    EXPECT_EQ(number("55.9").rounded(0, Rounding::TowardZero).integerValue(), 55);
    EXPECT_EQ(number("-0.5").rounded(0, Rounding::TowardZero).stringValue(), "0");
    EXPECT_EQ(number("-7.9").integerValue(), -7);
}

TEST(DecimalNumber, PrintedDoublesAreRoundedFromTheirSixDecimalText) {
    // 0.1 + 0.2 is 0.30000000000000004 in binary; its "%f" text is exactly 0.300000.
    EXPECT_EQ(DecimalNumber::fromPrintedDouble(0.1 + 0.2, 6, Rounding::Plain)->stringValue(), "0.3");
    // 1.0049999999 prints as 1.005000, which rounds up to 1.01 as a decimal.
    EXPECT_EQ(DecimalNumber::fromPrintedDouble(1.0049999999, 2, Rounding::Plain)->fixed(2), "1.01");
    EXPECT_FALSE(DecimalNumber::fromPrintedDouble(1.0 / 0.0, 2, Rounding::Plain));
}

TEST(DecimalNumber, MultipliesAndDividesExactly) {
    EXPECT_EQ(number("0.1").multipliedBy(number("3")).stringValue(), "0.3");
    EXPECT_EQ(number("-1.25").multipliedBy(number("0.4")).stringValue(), "-0.5");
    EXPECT_EQ(number("50").dividedBy(number("0.1"))->stringValue(), "500");
    EXPECT_EQ(number("1").dividedBy(number("8"))->stringValue(), "0.125");
    EXPECT_EQ(number("2").dividedBy(number("3"))->stringValue(), "0.66666666666666666666666666666666666667");
    EXPECT_EQ(number("0").dividedBy(number("7"))->stringValue(), "0");
    EXPECT_FALSE(number("1").dividedBy(number("0.000")));
}

TEST(NumberFormatPattern, WritesFractionDigitsBetweenMinimumAndMaximum) {
    EXPECT_EQ(formatted("0.00", "1.5"), "1.50");
    EXPECT_EQ(formatted("0.0#", "1.5"), "1.5");
    EXPECT_EQ(formatted("0.0#", "1.257"), "1.26");
    EXPECT_EQ(formatted("0", "2.5"), "2");
    EXPECT_EQ(formatted("0", "3.5"), "4");
    EXPECT_EQ(formatted("#", "0"), "0");
    EXPECT_EQ(formatted("#.##", "0.5"), ".5");
    EXPECT_EQ(formatted("000", "7"), "007");
    EXPECT_EQ(formatted("0.0", "-0.04"), "0.0");
    EXPECT_EQ(formatted("0.0", "-12.25"), "-12.2");
}

TEST(NumberFormatPattern, KeepsLiteralAffixesAndGroupsThousands) {
    EXPECT_EQ(formatted("#,##0", "1234567"), "1,234,567");
    EXPECT_EQ(formatted("#,##0.0", "999.96"), "1,000.0");
    EXPECT_EQ(formatted("0'dpi'", "600"), "600dpi");
    EXPECT_EQ(formatted("Tray0", "3"), "Tray3");
    EXPECT_EQ(formatted("0.0;(0.0)", "-2"), "-2.0");
}
