#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "core/PlistIO.h"
#include "core/PlistValue.h"
#include "ppd/PrintOptionConverter.h"

namespace ComQuorvantVelmar_Plugin {

// Readable failure messages for dictionaries: their property list text.
inline void PrintTo(const PlistValue& value, std::ostream* out) { *out << PlistIO::serialize(value); }
inline void PrintTo(const PlistDictionary& dictionary, std::ostream* out) { PrintTo(PlistValue(dictionary), out); }

}  // namespace ComQuorvantVelmar_Plugin

namespace ConverterTest {

using ComQuorvantVelmar_Plugin::PlistDictionary;
using ComQuorvantVelmar_Plugin::PrintOptionConverter;

inline PlistDictionary canonical(PlistDictionary printOption, int convertCustomFlg = 1) {
    PrintOptionConverter::convertToCanonicalPpdKeyword(printOption, convertCustomFlg);
    return printOption;
}

inline PlistDictionary internal(PlistDictionary printOption) {
    PrintOptionConverter::convertToInternalPpdKeyword(printOption);
    return printOption;
}

/// expected followed by the N-up and booklet keys that reading back a dictionary without
/// imposition always adds.
inline PlistDictionary withSinglePageImposition(PlistDictionary expected) {
    expected.set("ImpositionNup_NumOfPages", "2up");
    expected.set("ImpositionBooklet_LayoutBaseFile", "Left");
    expected.set("ImpositionBooklet_CreepTotalOffset", "0.00");
    return expected;
}

/// The dictionary's entries by key, for comparisons where the order of keys is no part
/// of the answer.
inline std::map<std::string, ComQuorvantVelmar_Plugin::PlistValue> entriesOf(const PlistDictionary& dictionary) {
    return {dictionary.begin(), dictionary.end()};
}

/// The values of keys in printOption, "-" for an absent one.
inline std::vector<std::string> valuesOf(const PlistDictionary& printOption, std::initializer_list<const char*> keys) {
    std::vector<std::string> values;
    for (const char* key : keys) values.push_back(printOption.stringFor(key, "-"));
    return values;
}

using Strings = std::vector<std::string>;

}  // namespace ConverterTest
