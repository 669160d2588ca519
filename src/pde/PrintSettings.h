#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// One print job option as CUPS carries it: a name and its text.
using CupsOptionText = std::pair<std::string, std::string>;

/// The print settings of one job: keys to strings or numbers, in the order they were
/// first set. On CUPS every entry travels as a job option.
class PrintSettings {
public:
    /// The value under key (a string or a number); nullptr when absent.
    const PlistValue* value(std::string_view key) const;
    /// The value under key as text (numbers in decimal); nothing when absent.
    std::optional<std::string> text(std::string_view key) const;
    /// Stores a string or a number under key; false, and nothing stored, for an empty key
    /// or a value of another kind.
    bool setValue(const std::string& key, PlistValue value);
    /// Removes the value under key; false when there was none.
    bool removeValue(std::string_view key);

    /// Every entry as a CUPS option (numbers as decimal text), in order.
    std::vector<CupsOptionText> cupsOptions() const;
    /// The entries themselves.
    const PlistDictionary& values() const { return _values; }

private:
    PlistDictionary _values;
};

}  // namespace ComQuorvantVelmar_Plugin
