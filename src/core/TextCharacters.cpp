#include "core/TextCharacters.h"

#include <iconv.h>
#include <uninorm.h>
#include <unistr.h>

#include <cerrno>
#include <cstdlib>
#include <functional>

namespace ComQuorvantVelmar_Plugin::TextCharacters {
namespace {

// glibc's wchar_t holds one Unicode character; the decoder is opened once per thread.
class Utf8Decoder {
public:
    Utf8Decoder() : _descriptor(::iconv_open("WCHAR_T", "UTF-8")) {}
    ~Utf8Decoder() {
        if (isOpen()) ::iconv_close(_descriptor);
    }
    Utf8Decoder(const Utf8Decoder&) = delete;
    Utf8Decoder& operator=(const Utf8Decoder&) = delete;

    bool isOpen() const { return _descriptor != reinterpret_cast<iconv_t>(-1); }

    // Calls character for each decoded character and illFormed with the offset of each byte
    // that starts no well-formed character.
    void decode(std::string_view text, const std::function<void(char32_t)>& character,
                const std::function<void(std::size_t)>& illFormed) {
        ::iconv(_descriptor, nullptr, nullptr, nullptr, nullptr);
        char* input = const_cast<char*>(text.data());
        std::size_t inputLeft = text.size();
        while (inputLeft > 0) {
            wchar_t buffer[256];
            char* output = reinterpret_cast<char*>(buffer);
            std::size_t outputLeft = sizeof buffer;
            const std::size_t result = ::iconv(_descriptor, &input, &inputLeft, &output, &outputLeft);
            const int failure = result == static_cast<std::size_t>(-1) ? errno : 0;
            for (const wchar_t* decoded = buffer; decoded < reinterpret_cast<wchar_t*>(output); ++decoded)
                character(static_cast<char32_t>(*decoded));
            if (failure != 0 && failure != E2BIG) {  // EILSEQ, or EINVAL at a cut-off end
                illFormed(static_cast<std::size_t>(input - text.data()));
                ++input;
                --inputLeft;
                ::iconv(_descriptor, nullptr, nullptr, nullptr, nullptr);
            }
        }
    }

private:
    iconv_t _descriptor;
};

void decode(std::string_view text, const std::function<void(char32_t)>& character,
            const std::function<void(std::size_t)>& illFormed) {
    thread_local Utf8Decoder decoder;
    if (decoder.isOpen()) {
        decoder.decode(text, character, illFormed);
        return;
    }
    // Without a converter every non-ASCII byte is taken as ill-formed; ASCII stays intact.
    for (std::size_t offset = 0; offset < text.size(); ++offset) {
        const auto byte = static_cast<unsigned char>(text[offset]);
        if (byte < 0x80) character(byte);
        else illFormed(offset);
    }
}

}  // namespace

std::u32string decodeCharacters(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    decode(
        text, [&](char32_t character) { characters.push_back(character); },
        [&](std::size_t) { characters.push_back(replacementCharacter); });
    return characters;
}

std::string withIllFormedBytesReplaced(std::string_view text, char replacement) {
    std::string result(text);
    decode(text, [](char32_t) {}, [&](std::size_t offset) { result[offset] = replacement; });
    return result;
}

std::size_t characterLength(std::string_view text) {
    std::size_t length = 0;
    for (char32_t character : decodeCharacters(text)) length += character > 0xFFFF ? 2 : 1;
    return length;
}

std::string precomposed(std::string_view text) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    if (text.empty() || u8_check(bytes, text.size()) != nullptr) return std::string(text);
    std::size_t length = 0;
    uint8_t* normalised = u8_normalize(UNINORM_NFC, bytes, text.size(), nullptr, &length);
    if (!normalised) return std::string(text);
    std::string result(reinterpret_cast<const char*>(normalised), length);
    std::free(normalised);
    return result;
}

}  // namespace ComQuorvantVelmar_Plugin::TextCharacters
