#include "favorites/StringEncoding.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin::StringEncodings {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

// One conversion descriptor, closed with the object.
class Converter {
public:
    Converter(const char* to, const char* from) : _descriptor(::iconv_open(to, from)) {}
    ~Converter() {
        if (isOpen()) ::iconv_close(_descriptor);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool isOpen() const { return _descriptor != reinterpret_cast<iconv_t>(-1); }

    // Converts all of input from the initial state; at a sequence it cannot convert it
    // calls skip, which answers how many input bytes to pass over (0 stops the conversion)
    // and what to append.
    template <typename Skip>
    bool convert(std::string_view input, std::string& output, Skip skip) {
        ::iconv(_descriptor, nullptr, nullptr, nullptr, nullptr);
        char* in = const_cast<char*>(input.data());
        std::size_t inLeft = input.size();
        while (inLeft > 0) {
            if (run(&in, &inLeft, output)) break;
            if (errno != EILSEQ && errno != EINVAL) return false;
            std::size_t passed = skip(std::string_view(in, inLeft), output);
            if (passed == 0) return false;
            in += passed;
            inLeft -= passed;
            ::iconv(_descriptor, nullptr, nullptr, nullptr, nullptr);
        }
        return run(nullptr, nullptr, output);
    }

private:
    // One call of iconv, repeated while the output chunk fills; false with errno set when
    // it stopped at a sequence it cannot convert.
    bool run(char** in, std::size_t* inLeft, std::string& output) {
        for (;;) {
            char chunk[1024];
            char* out = chunk;
            std::size_t outLeft = sizeof chunk;
            std::size_t result = ::iconv(_descriptor, in, inLeft, &out, &outLeft);
            const int savedError = errno;
            output.append(chunk, static_cast<std::size_t>(out - chunk));
            if (result != static_cast<std::size_t>(-1)) return true;
            if (savedError != E2BIG) {
                errno = savedError;
                return false;
            }
        }
    }

    iconv_t _descriptor;
};

// The converter from one encoding to another, opened once per thread: opening one costs
// far more than converting a setting, and a favorite file converts every key and value.
Converter& converter(const char* to, const char* from) {
    struct Entry {
        const char* to;
        const char* from;
        std::unique_ptr<Converter> converter;
    };
    thread_local std::vector<Entry> converters;
    for (Entry& entry : converters)
        if (std::strcmp(entry.to, to) == 0 && std::strcmp(entry.from, from) == 0) return *entry.converter;
    converters.push_back({to, from, std::make_unique<Converter>(to, from)});
    return *converters.back().converter;
}

// Every encoding offered keeps the ASCII range as it is, and most keys and values of a
// favorite are ASCII: those need no conversion.
bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// The length of the UTF-8 sequence that begins text, at least 1, at most what is left.
std::size_t utf8SequenceLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return std::min(length, text.size());
}

}  // namespace

const char* iconvName(StringEncoding encoding) {
    switch (encoding) {
        case StringEncoding::None: return "";
        case StringEncoding::UTF8: return "UTF-8";
        case StringEncoding::DOSLatin1: return "CP850";
        // Shift JIS in glibc turns 0x5C into a yen sign and 0x7E into an overline, so a
        // backslash or tilde in a setting would not survive a save and a read. Code page
        // 932 keeps the ASCII range as ASCII, and holds every Shift JIS character besides.
        case StringEncoding::DOSJapanese:
        case StringEncoding::ShiftJIS: return "CP932";
        case StringEncoding::DOSChineseTrad: return "CP950";
        case StringEncoding::DOSKorean: return "CP949";
        case StringEncoding::DOSChineseSimplif: return "CP936";
        case StringEncoding::EUC_JP: return "EUC-JP";
        case StringEncoding::WindowsLatin1: return "CP1252";
    }
    return "";
}

std::string decode(std::string_view bytes, StringEncoding encoding) {
    std::string text;
    if (encoding == StringEncoding::None) return text;
    Converter& decoder = converter("UTF-8", iconvName(encoding));
    if (!decoder.isOpen()) return text;
    if (isAscii(bytes)) return std::string(bytes);
    decoder.convert(bytes, text, [](std::string_view, std::string& output) {
        output += replacementCharacter;
        return std::size_t{1};
    });
    return text;
}

std::optional<std::string> decodeStrictly(std::string_view bytes, StringEncoding encoding) {
    std::string text;
    if (encoding == StringEncoding::None) return std::nullopt;
    Converter& decoder = converter("UTF-8", iconvName(encoding));
    if (!decoder.isOpen()) return std::nullopt;
    if (isAscii(bytes)) return std::string(bytes);
    if (!decoder.convert(bytes, text, [](std::string_view, std::string&) { return std::size_t{0}; }))
        return std::nullopt;
    return text;
}

std::string encode(std::string_view text, StringEncoding encoding, bool* lossy) {
    if (lossy) *lossy = false;
    if (encoding == StringEncoding::None) return std::string(text);
    std::string bytes;
    Converter& encoder = converter(iconvName(encoding), "UTF-8");
    if (!encoder.isOpen()) return bytes;
    if (isAscii(text)) return std::string(text);
    encoder.convert(text, bytes, [lossy](std::string_view rest, std::string& output) {
        if (lossy) *lossy = true;
        output += '?';
        return utf8SequenceLength(rest);
    });
    return bytes;
}

}  // namespace ComQuorvantVelmar_Plugin::StringEncodings
