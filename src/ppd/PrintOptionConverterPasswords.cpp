// Secure-print, resource and authentication passwords travel to the press only in the
// form of the maker's encoding library.

#include <array>
#include <algorithm>
#include <cstring>

#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"
#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin::ConverterSteps {
namespace {

constexpr std::array<std::string_view, 3> kPasswordKeys{"SecPrintPassword", "RscPassword", "AuthJobPassword"};

// The press has always received the library's answer through a zero-filled buffer of
// 1024 bytes read as a C string: it ends at the first zero byte and within the buffer.
constexpr std::size_t kBufferSize = 1024;

std::string asBufferString(const std::string& answer) {
    return answer.substr(0, ::strnlen(answer.c_str(), std::min(answer.size(), kBufferSize - 1)));
}

using Transform = int (*)(const std::string&, std::string&);

// A failure is logged, and what the library left (usually nothing) still replaces the
// value: the job then carries no password rather than one in clear.
void transformPasswords(PlistDictionary& printOption, Transform transform, std::string_view failure) {
    for (std::string_view key : kPasswordKeys) {
        auto password = ConverterSupport::nonEmptyString(printOption, key);
        if (!password) continue;
        std::string answer;
        if (transform(*password, answer) != 0) Diagnostics::log(failure);
        printOption.set(std::string(key), asBufferString(answer));
    }
}

}  // namespace

void encodePasswords(PlistDictionary& printOption) {
    transformPasswords(printOption, encode, "###### encode error");
}

void decodePasswords(PlistDictionary& printOption) {
    transformPasswords(printOption, decode, "###### decode error");
}

}  // namespace ComQuorvantVelmar_Plugin::ConverterSteps
