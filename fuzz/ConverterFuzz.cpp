// Feeds arbitrary print option dictionaries (one "key<TAB>value" a line) through both
// whole-dictionary conversions, and arbitrary values through the unit conversions and
// the table's number formatting: a strange setting must never crash the panel.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "ppd/DecimalNumber.h"
#include "ppd/NumberFormatPattern.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

PlistDictionary dictionaryOf(std::string_view text) {
    PlistDictionary printOption;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        const auto tab = line.find('\t');
        if (tab != std::string_view::npos) printOption.set(std::string(line.substr(0, tab)), line.substr(tab + 1));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return printOption;
}

void convertValues(const PlistDictionary& printOption) {
    for (const auto& [key, value] : printOption) {
        const std::string& text = *value.string();
        PrintOptionConverter::convertMmToCep(text);
        PrintOptionConverter::convertCepToMm(text);
        PrintOptionConverter::convertMagToVORN(text);
        PrintOptionConverter::convertVORNToMag(text);
        PrintOptionConverter::getCepSizeFromPaperSizeType(text);
        auto number = DecimalNumber::fromString(text);
        auto divisor = DecimalNumber::fromString(key);
        if (number && divisor) {
            number->multipliedBy(*divisor).stringValue();
            if (auto quotient = number->dividedBy(*divisor)) NumberFormatPattern(key).format(*quotient);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const PlistDictionary original = dictionaryOf(std::string_view(reinterpret_cast<const char*>(data), size));
    convertValues(original);
    PlistDictionary printOption = original;
    PrintOptionConverter::convertToCanonicalPpdKeyword(printOption, 1);
    PrintOptionConverter::convertToInternalPpdKeyword(printOption);
    PlistDictionary press = original;
    PrintOptionConverter::convertToInternalPpdKeyword(press);
    return 0;
}
