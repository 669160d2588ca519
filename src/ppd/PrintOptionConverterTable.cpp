// The conversion table between PPD keywords and the tag keys and values of the older
// input manager.

#include <array>
#include <cctype>
#include <charconv>

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "favorites/AppPreference.h"
#include "ppd/DecimalNumber.h"
#include "ppd/NumberFormatPattern.h"
#include "ppd/PrintOptionConverter.h"
#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace ConverterSupport;

namespace {

constexpr std::string_view kNumberPlaceholder = "%d";
// The yen sign is how Japanese code pages show the backslash; the press wants a backslash.
constexpr std::string_view kYenSign = "\xC2\xA5";

constexpr std::array<std::string_view, 8> kRgbColorCorrections{
    "None", "sRGB", "RGB", "AdobeRGB", "sRGBAutoAdjust", "sRGBAutoPerson", "sRGBAutoScene", "sRGBAutoOnSitePhoto"};

bool endsWithPlaceholder(std::string_view pattern) { return pattern.ends_with(kNumberPlaceholder); }

std::string_view placeholderPrefix(std::string_view pattern) {
    return pattern.substr(0, pattern.size() - kNumberPlaceholder.size());
}

// A value is true when it is a true boolean, a non-zero number or the word "True" in
// any case.
bool truthOf(const PlistValue& value) {
    if (const auto* text = value.string()) {
        if (text->size() != 4) return false;
        std::string lower = *text;
        for (char& character : lower) character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        return lower == "true";
    }
    auto number = value.number();
    return number && *number != 0;
}

std::optional<DecimalNumber> decimalOf(const PlistValue& value) {
    if (const auto* text = value.string()) return DecimalNumber::fromString(*text);
    if (const auto* number = value.integer()) return DecimalNumber::fromInteger(*number);
    if (const auto* number = value.real()) {
        char text[64];
        const auto printed = std::to_chars(text, text + sizeof text, *number);
        return DecimalNumber::fromString(std::string_view(text, static_cast<std::size_t>(printed.ptr - text)));
    }
    if (const auto* flag = value.boolean()) return DecimalNumber::fromInteger(*flag ? 1 : 0);
    return std::nullopt;
}

const PlistArray* itemsOf(const PlistDictionary& entry) {
    const PlistValue* items = entry.find("items");
    return items ? items->array() : nullptr;
}

std::optional<std::string> optionKeywordOf(const PlistValue& item) {
    const PlistDictionary* fields = item.dictionary();
    return fields ? fields->stringFor("optionKeyword") : std::nullopt;
}

PlistValue tagValueOf(const PlistValue& item) {
    const PlistValue* value = item.dictionary()->find("tagValue");
    return value ? *value : PlistValue();
}

std::optional<PlistValue> optionKeywordFromItems(const PlistArray& items, const PlistValue& tagValue) {
    for (const PlistValue& item : items) {
        auto pattern = optionKeywordOf(item);
        if (!pattern) continue;
        if (endsWithPlaceholder(*pattern))
            return std::string(placeholderPrefix(*pattern)) +
                   std::to_string(static_cast<long long>(integerOfValue(tagValue)) - integerOfValue(tagValueOf(item)));
        if (integerOfValue(tagValueOf(item)) == integerOfValue(tagValue)) return *pattern;
    }
    return std::nullopt;
}

std::optional<PlistValue> formattedNumber(const PlistDictionary& entry, const PlistValue& tagValue) {
    auto number = decimalOf(tagValue);
    if (!number) return std::nullopt;
    if (const PlistValue* magnification = entry.find("magnification")) {
        auto divisor = decimalOf(*magnification);
        number = divisor ? number->dividedBy(*divisor) : std::nullopt;
        if (!number) return std::nullopt;
    }
    // Without a pattern the number formatter writes whole numbers.
    return NumberFormatPattern(entry.stringFor("format", "#")).format(*number);
}

std::optional<PlistValue> optionKeywordFor(const PlistDictionary& entry, const PlistValue& tagValue) {
    if (const PlistArray* items = itemsOf(entry)) return optionKeywordFromItems(*items, tagValue);
    if (holds(entry, "tagValueType", "Boolean")) return PlistValue(integerOfValue(tagValue) == 1);
    if (entry.contains("magnification") || entry.contains("format")) return formattedNumber(entry, tagValue);
    return tagValue;
}

PlistValue withBackslashForYen(PlistValue value) {
    if (const auto* text = value.string()) return replacingAll(*text, kYenSign, "\\");
    return value;
}

std::optional<PlistValue> tagValueFromItems(const PlistArray& items, const PlistValue& optionKeyword) {
    const std::string text = optionKeyword.string() ? *optionKeyword.string() : (truthOf(optionKeyword) ? "True" : "");
    for (const PlistValue& item : items) {
        auto pattern = optionKeywordOf(item);
        if (!pattern) continue;
        if (endsWithPlaceholder(*pattern)) {
            const std::string_view prefix = placeholderPrefix(*pattern);
            if (!prefix.empty() && !text.starts_with(prefix)) continue;
            const auto firstDigit = text.find_first_of("0123456789");
            const int number = firstDigit == std::string::npos ? 0 : integerOf(std::string_view(text).substr(firstDigit));
            return PlistValue(static_cast<long long>(number) + integerOfValue(tagValueOf(item)));
        }
        if (text == *pattern) return tagValueOf(item);
    }
    return std::nullopt;
}

std::optional<PlistValue> tagValueFor(const PlistDictionary& entry, const PlistValue& optionKeyword) {
    if (const PlistArray* items = itemsOf(entry)) return tagValueFromItems(*items, optionKeyword);
    if (!optionKeyword.string() || holds(entry, "tagValueType", "Boolean")) return PlistValue(truthOf(optionKeyword));
    if (const PlistValue* magnification = entry.find("magnification")) {
        auto number = decimalOf(optionKeyword);
        auto factor = decimalOf(*magnification);
        if (!number || !factor) return std::nullopt;
        return number->multipliedBy(*factor).stringValue();
    }
    return optionKeyword;
}

const PlistDictionary* entryFor(const PlistDictionary& table, std::string_view mainKeyword) {
    const PlistValue* entry = table.find(mainKeyword);
    return entry ? entry->dictionary() : nullptr;
}

// The first entry in the table's order whose tag key is tagKey.
const PlistDictionary::Entry* entryForTag(const PlistDictionary& table, std::string_view tagKey) {
    for (const auto& entry : table)
        if (entry.second.dictionary() && holds(*entry.second.dictionary(), "tagKey", tagKey)) return &entry;
    return nullptr;
}

bool isTag(const PlistValue& value, int expected) {
    if (const auto* text = value.string()) return *text == std::to_string(expected);
    auto number = value.number();
    return number && *number == expected;
}

void addRgbColorCorrection(const PlistDictionary& inputMgrOption, PlistDictionary& ppdOption) {
    const PlistValue* mode = inputMgrOption.find("CL_RGBMD");
    if (!mode) return;
    const int index = integerOfValue(*mode);
    if (index >= 0 && index < static_cast<int>(kRgbColorCorrections.size()))
        ppdOption.set("QZRGBColorCorrect", kRgbColorCorrections[static_cast<std::size_t>(index)]);
    ppdOption.erase("QZSRGBAuto");
    ppdOption.erase("QZSRGBAutoType");
}

void addSaveFile(const PlistDictionary& inputMgrOption, PlistDictionary& ppdOption) {
    const PlistValue* fileType = inputMgrOption.find("SP_SAVEFT");
    if (!fileType) return;
    const PlistValue* resolutionValue = inputMgrOption.find("SP_TFDPI");
    const int resolution = resolutionValue ? integerOfValue(*resolutionValue) : 0;
    const std::string dots = std::to_string(resolution >= 1 ? resolution : 600) + "dpi";
    if (isTag(*fileType, 0)) ppdOption.set("QZSaveFile", "None");
    if (isTag(*fileType, 1)) ppdOption.set("QZSaveFile", "TIFF" + dots);
    if (isTag(*fileType, 2)) ppdOption.set("QZSaveFile", "PDF" + dots);
}

}  // namespace

std::optional<PlistDictionary> PrintOptionConverter::convertTable() const {
    auto name = AppPreference::sharedInstance().convertTableFileNameWithAppName();
    if (!name) return std::nullopt;
    const auto bundle = BSPrincipalBundle();
    return DictionaryNamed(*name, bundle.get());
}

PlistDictionary PrintOptionConverter::toPpdKeywordFormat(const PlistDictionary& inputMgrOption) const {
    PlistDictionary ppdOption;
    const auto table = convertTable();
    if (!table) return ppdOption;
    for (const auto& [tagKey, tagValue] : inputMgrOption) {
        const PlistDictionary::Entry* entry = entryForTag(*table, tagKey);
        if (!entry) continue;
        if (auto optionKeyword = optionKeywordFor(*entry->second.dictionary(), tagValue))
            ppdOption.set(entry->first, withBackslashForYen(std::move(*optionKeyword)));
    }
    addRgbColorCorrection(inputMgrOption, ppdOption);
    addSaveFile(inputMgrOption, ppdOption);
    return ppdOption;
}

PlistDictionary PrintOptionConverter::toInputMgrFormat(const PlistDictionary& ppdOption) const {
    PlistDictionary inputMgrOption;
    const auto table = convertTable();
    if (!table) return inputMgrOption;
    for (const auto& [mainKeyword, optionKeyword] : ppdOption) {
        const PlistDictionary* entry = entryFor(*table, mainKeyword);
        auto tagKey = entry ? entry->stringFor("tagKey") : std::nullopt;
        if (!tagKey) continue;
        if (auto tagValue = tagValueFor(*entry, optionKeyword)) inputMgrOption.set(*tagKey, std::move(*tagValue));
    }
    return inputMgrOption;
}

std::optional<PlistValue> PrintOptionConverter::inputMgrTagValue(std::string_view mainKeyword,
                                                                 std::string_view optionKeywod) const {
    const auto table = convertTable();
    const PlistDictionary* entry = table ? entryFor(*table, mainKeyword) : nullptr;
    if (!entry) return std::nullopt;
    return tagValueFor(*entry, PlistValue(optionKeywod));
}

}  // namespace ComQuorvantVelmar_Plugin
