// Lengths between millimetres and cep, print-position magnifications, and the setting
// values that the press wants as scaled integers.

#include <algorithm>
#include <array>
#include <limits>

#include "ppd/DecimalNumber.h"
#include "ppd/PrintOptionConverter.h"
#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace ConverterSupport;

namespace {

constexpr double kCepPerInch = 14400;
constexpr double kMillimetresPerInch = 25.4;

// The product is printed with "%f" and that text is rounded as a decimal number, so the
// result never depends on the binary value's last bits: 210 mm is always 119055 cep.
DecimalNumber roundedProduct(double product, int scale) {
    return DecimalNumber::fromPrintedDouble(product, scale, DecimalNumber::Rounding::Plain).value_or(DecimalNumber());
}

int clampedToInt(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                     std::numeric_limits<int>::max()));
}

// "%05.3f": at least five characters, zeros after the sign.
std::string zeroPadded(std::string text, std::size_t width) {
    if (text.size() >= width) return text;
    const std::size_t signLength = !text.empty() && text.front() == '-' ? 1 : 0;
    text.insert(signLength, width - text.size(), '0');
    return text;
}

template <int Factor>
std::string scaledToInteger(std::string_view value) {
    return std::to_string(nearestInteger(static_cast<float>(doubleOf(value)) * static_cast<float>(Factor)));
}

std::string thousandthsToDecimal(std::string_view value) {
    return zeroPadded(fixedText(integerOf(value) / 1000.0, 3), 5);
}

std::string hundredthsToDecimal(std::string_view value) { return fixedText(integerOf(value) / 100.0, 2); }

std::string tenthsToDecimal(std::string_view value) { return fixedText(integerOf(value) / 10.0, 1); }

constexpr std::array<std::string_view, 8> kColorReplaceKeys{
    "SpTonerColorReplaceCyanFront", "SpTonerColorReplaceMagentaFront", "SpTonerColorReplaceYellowFront",
    "SpTonerColorReplaceBlackFront", "SpTonerColorReplaceCyanBack",    "SpTonerColorReplaceMagentaBack",
    "SpTonerColorReplaceYellowBack", "SpTonerColorReplaceBlackBack"};

}  // namespace

std::string PrintOptionConverter::convertMmToCep(std::string_view millimetres) {
    return roundedProduct(doubleOf(millimetres) * kCepPerInch / kMillimetresPerInch, 0).fixed(0);
}

std::string PrintOptionConverter::convertCepToMm(std::string_view cep) {
    return roundedProduct(doubleOf(cep) * kMillimetresPerInch / kCepPerInch, 2).fixed(2);
}

std::string PrintOptionConverter::convertMagToVORN(std::string_view magnification) {
    const DecimalNumber tenths = roundedProduct((doubleOf(magnification) - 100) * 10, 1);
    return std::to_string(clampedToInt(tenths.integerValue()));
}

std::string PrintOptionConverter::convertVORNToMag(std::string_view value) {
    return roundedProduct(integerOf(value) / 10.0 + 100, 1).fixed(1);
}

void PrintOptionConverter::convertToCanonicalMagnification(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption, {"Magnification"}, scaledToInteger<10>);
}

void PrintOptionConverter::convertToInternalMagnification(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption, {"Magnification"}, tenthsToDecimal);
}

namespace ConverterSteps {

void customSizesToCep(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption,
                        {"ChgPrintPaperSizeLength", "ChgPrintPaperSizeWidth", "ImpositionFormPositionWidth",
                         "ImpositionFormPositionLength", "FormPositionWidth", "FormPositionLength"},
                        PrintOptionConverter::convertMmToCep);
}

void finishingSizesToCep(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption,
                        {"CreasePosition1", "CreasePosition2", "CreasePosition3", "CreasePosition4",
                         "CreasePosition5", "TopAndTailTrimFinishSize", "TopAndTailTrimRearCutSize",
                         "TopAndTailTrimFrontCutSize", "TrimmerFinishedSize", "TrimmerCutSize"},
                        PrintOptionConverter::convertMmToCep);
}

void printPositionsToCanonical(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption,
                        {"PrintPositionFrontWidth", "PrintPositionFrontLength", "PrintPositionBackWidth",
                         "PrintPositionBackLength"},
                        PrintOptionConverter::convertMmToCep);
    convertEachNonEmpty(printOption,
                        {"PrintPositionFrontWidthMag", "PrintPositionFrontLengthMag", "PrintPositionBackWidthMag",
                         "PrintPositionBackLengthMag"},
                        PrintOptionConverter::convertMagToVORN);
}

void scaledNumbersToCanonical(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption, {"HairLineWarningPoint", "MinimumLineWidthValue"}, scaledToInteger<1000>);
    convertEachNonEmpty(printOption, kColorReplaceKeys, scaledToInteger<100>);
}

void paperSizeLengthsToMillimetres(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption, {"ChgPrintPaperSizeLength", "ChgPrintPaperSizeWidth"},
                        PrintOptionConverter::convertCepToMm);
}

void finishingLengthsToMillimetres(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption,
                        {"ImpositionFormPositionWidth", "ImpositionFormPositionLength", "FormPositionWidth",
                         "FormPositionLength", "CreasePosition1", "CreasePosition2", "CreasePosition3",
                         "CreasePosition4", "CreasePosition5", "TopAndTailTrimFinishSize",
                         "TopAndTailTrimRearCutSize", "TopAndTailTrimFrontCutSize", "TrimmerFinishedSize",
                         "TrimmerCutSize", "PrintPositionFrontWidth", "PrintPositionFrontLength",
                         "PrintPositionBackWidth", "PrintPositionBackLength"},
                        PrintOptionConverter::convertCepToMm);
    convertEachNonEmpty(printOption,
                        {"PrintPositionFrontWidthMag", "PrintPositionFrontLengthMag", "PrintPositionBackWidthMag",
                         "PrintPositionBackLengthMag"},
                        PrintOptionConverter::convertVORNToMag);
}

void scaledNumbersToInternal(PlistDictionary& printOption) {
    convertEachNonEmpty(printOption, {"HairLineWarningPoint", "MinimumLineWidthValue"}, thousandthsToDecimal);
    convertEachNonEmpty(printOption, kColorReplaceKeys, hundredthsToDecimal);
}

}  // namespace ConverterSteps
}  // namespace ComQuorvantVelmar_Plugin
