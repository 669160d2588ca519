#include "ppd/PpdText_p.h"

#include <cups/ppd.h>
#include <iconv.h>

#include <cstring>

namespace ComQuorvantVelmar_Plugin::PpdText {
namespace {

std::string attributeValue(ppd_file_t* ppd, const char* name) {
    ppd_attr_t* attribute = ppdFindAttr(ppd, name, nullptr);
    return attribute && attribute->value ? attribute->value : "";
}

// Converts all of bytes, or nothing at the first byte that has no place in either side.
std::optional<std::string> convert(std::string_view bytes, const char* from, const char* to) {
    iconv_t converter = iconv_open(to, from);
    if (converter == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
    std::string input(bytes);
    std::string output(input.size() * 4 + 16, '\0');
    char* in = input.data();
    std::size_t inLeft = input.size();
    char* out = output.data();
    std::size_t outLeft = output.size();
    std::size_t result = iconv(converter, &in, &inLeft, &out, &outLeft);
    // Converters that hold back a character for a possible combining mark give it up here.
    if (result != static_cast<std::size_t>(-1))
        result = iconv(converter, nullptr, nullptr, &out, &outLeft);
    iconv_close(converter);
    if (result == static_cast<std::size_t>(-1) || inLeft != 0) return std::nullopt;
    output.resize(output.size() - outLeft);
    return output;
}

const char* charsetOf(PpdStringEncoding encoding) {
    switch (encoding) {
        case PpdStringEncoding::UTF8: return "UTF-8";
        case PpdStringEncoding::MacRoman: return "MACINTOSH";
        case PpdStringEncoding::MacJapanese: return "CP932";
        case PpdStringEncoding::MacSimplifiedChinese: return "CP936";
        case PpdStringEncoding::ASCII: break;
    }
    return nullptr;
}

// The character set libcups read the display texts in before handing them out as UTF-8;
// nullptr when it took the bytes as they were.
const char* libcupsSourceCharset(ppd_file_t* ppd) {
    const std::string languageEncoding = attributeValue(ppd, "LanguageEncoding");
    if (languageEncoding == "ISOLatin1") return "ISO-8859-1";
    if (languageEncoding == "JIS83-RKSJ") return "SHIFT_JISX0213";
    return nullptr;
}

bool isAscii(std::string_view bytes) {
    for (unsigned char byte : bytes)
        if (byte >= 0x80) return false;
    return true;
}

}  // namespace

PpdStringEncoding encodingOf(ppd_file_t* ppd) {
    const std::string encoding = attributeValue(ppd, "LanguageEncoding");
    if (encoding == "UTF-8") return PpdStringEncoding::UTF8;
    if (encoding == "ISOLatin1") return PpdStringEncoding::MacRoman;
    if (encoding == "JIS83-RKSJ") return PpdStringEncoding::MacJapanese;
    if (attributeValue(ppd, "LanguageVersion") == "Chinese" && encoding == "None")
        return PpdStringEncoding::MacSimplifiedChinese;
    return PpdStringEncoding::ASCII;
}

std::optional<std::string> decodeBytes(std::string_view bytes, PpdStringEncoding encoding) {
    if (isAscii(bytes)) return std::string(bytes);
    const char* charset = charsetOf(encoding);
    if (!charset) return std::nullopt;
    return convert(bytes, charset, "UTF-8");
}

std::optional<std::string> decodeText(ppd_file_t* ppd, std::string_view text,
                                      PpdStringEncoding encoding) {
    if (isAscii(text)) return std::string(text);
    const char* source = libcupsSourceCharset(ppd);
    if (!source) return decodeBytes(text, encoding);
    std::optional<std::string> original = convert(text, "UTF-8", source);
    if (!original) return std::nullopt;
    return decodeBytes(*original, encoding);
}

std::optional<Keyword> toKeyword(std::string_view keyword) {
    Keyword result{};
    if (keyword.size() >= sizeof(result.bytes) || !isAscii(keyword) ||
        keyword.find('\0') != std::string_view::npos)
        return std::nullopt;
    std::memcpy(result.bytes, keyword.data(), keyword.size());
    return result;
}

}  // namespace ComQuorvantVelmar_Plugin::PpdText
