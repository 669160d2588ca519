#pragma once

// Shared by the PrintOptionConverter*.cpp files: reading setting values the way the
// print dialog has always read them, and the steps of the two whole-dictionary
// directions that are not class operations of their own.

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin::ConverterSupport {

/// The integer at the start of text (blanks, sign, digits), clamped to 32 bits; 0 when none.
int integerOf(std::string_view text);
/// A string read as above, an integer clamped, a real truncated, a boolean 0 or 1; else 0.
int integerOfValue(const PlistValue& value);
/// The number at the start of text; 0 when none.
double doubleOf(std::string_view text);
/// value as "%.<decimals>f" with a "." whatever the user's locale.
std::string fixedText(double value, int decimals);
/// The nearest integer of value, halves away from zero, clamped to 32 bits.
int nearestInteger(float value);

/// The string under key when it is a non-empty string, else nothing.
std::optional<std::string> nonEmptyString(const PlistDictionary& printOption, std::string_view key);
/// Whether key holds exactly the string expected.
bool holds(const PlistDictionary& printOption, std::string_view key, std::string_view expected);
/// text with every from replaced by to.
std::string replacingAll(std::string text, std::string_view from, std::string_view to);
/// text cut at every separator.
std::vector<std::string> components(std::string_view text, char separator);
/// Replaces each listed key that holds a non-empty string by convert(value).
void convertEachNonEmpty(PlistDictionary& printOption, std::span<const std::string_view> keys,
                         std::string (*convert)(std::string_view));
void convertEachNonEmpty(PlistDictionary& printOption, std::initializer_list<std::string_view> keys,
                         std::string (*convert)(std::string_view));

}  // namespace ComQuorvantVelmar_Plugin::ConverterSupport

namespace ComQuorvantVelmar_Plugin::ConverterSteps {

// Internal -> canonical, in the order the direction runs them.
void markSpotColorCorrectionProfileType(PlistDictionary& printOption);
void markRenderingProfileType(PlistDictionary& printOption);
void writeTwoColorPressNamesForPpd(PlistDictionary& printOption);
void markStackerTypes(PlistDictionary& printOption);
void splitPunch(PlistDictionary& printOption);
void splitOutputOrder(PlistDictionary& printOption);
void encodePasswords(PlistDictionary& printOption);
void splitPaperTypes(PlistDictionary& printOption);
void fillAuthJobUserId(PlistDictionary& printOption);
void splitSpecialTonerColors(PlistDictionary& printOption);
void customSizesToCep(PlistDictionary& printOption);
void finishingSizesToCep(PlistDictionary& printOption);
void printPositionsToCanonical(PlistDictionary& printOption);
void scaledNumbersToCanonical(PlistDictionary& printOption);

// Canonical -> internal, in the order the direction runs them.
void markRenderingProfile(PlistDictionary& printOption);
void readTwoColorPressNamesFromPpd(PlistDictionary& printOption);
void joinPunch(PlistDictionary& printOption);
void joinOutputOrder(PlistDictionary& printOption);
void decodePasswords(PlistDictionary& printOption);
void joinPaperTypes(PlistDictionary& printOption);
void paperSizeLengthsToMillimetres(PlistDictionary& printOption);
void joinSpecialTonerColors(PlistDictionary& printOption);
void finishingLengthsToMillimetres(PlistDictionary& printOption);
void scaledNumbersToInternal(PlistDictionary& printOption);

}  // namespace ComQuorvantVelmar_Plugin::ConverterSteps
