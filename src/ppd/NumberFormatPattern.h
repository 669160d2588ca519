#pragma once

#include <string>
#include <string_view>

#include "ppd/DecimalNumber.h"

namespace ComQuorvantVelmar_Plugin {

/// A number format pattern of the conversion table ("0", "0.0", "#,##0.00", "0.##dpi"):
/// literal prefix and suffix, integer digits ("0" required, "#" optional, "," grouping),
/// fraction digits after "."; a negative subpattern after ";" is ignored. Numbers are
/// rounded half to even, as the print dialog's number formatter does, and written with
/// "." and "," whatever the user's locale, because the result is a PPD keyword.
class NumberFormatPattern {
public:
    /// The pattern read from its text; unknown characters count as literal text.
    explicit NumberFormatPattern(std::string_view pattern);

    /// number written by the pattern.
    std::string format(const DecimalNumber& number) const;

private:
    std::string withGrouping(std::string digits) const;

    std::string _prefix;
    std::string _suffix;
    int _minimumIntegerDigits = 0;
    int _minimumFractionDigits = 0;
    int _maximumFractionDigits = 0;
    int _groupingSize = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
