#include <cctype>
#include <cstdlib>

#include "favorites/FavoriteFileFormat_p.h"

namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat {
namespace {

// The bytes up to a delimiter, the end of the file or the token's limit.
struct Token {
    std::string bytes;
    bool atEnd = false;  // the end of the file was reached
};

class TokenReader {
public:
    explicit TokenReader(std::FILE* stream) : _stream(stream) {}

    // Reads up to limit bytes before the delimiter; the delimiter is consumed when it
    // comes next, so a token of exactly limit bytes still ends its line.
    Token read(char delimiter, std::size_t limit) {
        Token token;
        for (;;) {
            const int byte = std::getc(_stream);
            if (byte == EOF) {
                token.atEnd = true;
                break;
            }
            if (byte == static_cast<unsigned char>(delimiter)) break;
            if (token.bytes.size() == limit) {
                std::ungetc(byte, _stream);
                break;
            }
            token.bytes.push_back(static_cast<char>(byte));
        }
        return token;
    }

    long position() const { return std::ftell(_stream); }
    bool seek(long position) { return position >= 0 && std::fseek(_stream, position, SEEK_SET) == 0; }

private:
    std::FILE* _stream;
};

bool isOneDigit(const std::string& token) {
    return token.size() == 1 && std::isdigit(static_cast<unsigned char>(token[0]));
}

// The version: exactly one digit, not above the version this build writes.
bool readVersion(TokenReader& reader, Contents& contents) {
    const Token token = reader.read('\n', headerTokenLimit);
    if (!isOneDigit(token.bytes) || token.bytes[0] - '0' > writtenVersion) return false;
    contents.version = token.bytes[0] - '0';
    return true;
}

// The device type: favorites saved for another device type are refused, so they stay
// invisible.
bool readDeviceType(TokenReader& reader, Contents& contents, std::int32_t deviceType) {
    const Token token = reader.read('\n', headerTokenLimit);
    if (token.bytes.size() < 3 && !token.bytes.empty() &&
        std::isdigit(static_cast<unsigned char>(token.bytes[0])))
        contents.iotType = static_cast<std::int32_t>(std::strtol(token.bytes.c_str(), nullptr, 10));
    return contents.iotType == deviceType;
}

// The language code; version 1 files carry no language code and read as Shift JIS.
bool readLanguageCode(TokenReader& reader, Contents& contents) {
    if (contents.version <= 1) return true;
    const Token token = reader.read('\n', headerTokenLimit);
    if (!isOneDigit(token.bytes)) return false;
    contents.encoding = token.bytes[0] - '0';
    return true;
}

// An optional "Comment=" line; without it the options begin right here.
bool readComment(TokenReader& reader, Contents& contents, StringEncoding encoding) {
    const long start = reader.position();
    const Token key = reader.read('=', headerTokenLimit);
    if (key.bytes == "Comment") {
        contents.comment = StringEncodings::decode(reader.read('\n', commentLimit).bytes, encoding);
        return true;
    }
    return reader.seek(start);
}

// The options: "key=value" pairs, each followed by two tabs, to the end of the file.
void readOptions(TokenReader& reader, Contents& contents, StringEncoding encoding) {
    for (;;) {
        const Token key = reader.read('=', keyLimit);
        if (key.bytes.empty() || key.atEnd) return;
        const Token value = reader.read('\t', valueLimit);
        contents.options.set(StringEncodings::decode(key.bytes, encoding),
                             StringEncodings::decode(value.bytes, encoding));
        if (value.atEnd || reader.read('\t', 1).atEnd) return;
    }
}

}  // namespace

std::int32_t languageCodeForEncoding(StringEncoding encoding) {
    switch (encoding) {
        case StringEncoding::EUC_JP: return 2;
        case StringEncoding::WindowsLatin1: return 3;
        case StringEncoding::DOSChineseSimplif: return 4;
        default: return 0;
    }
}

StringEncoding encodingForLanguageCode(std::int32_t code) {
    switch (code) {
        case 2: return StringEncoding::EUC_JP;
        case 3: return StringEncoding::WindowsLatin1;
        case 4: return StringEncoding::DOSChineseSimplif;
        default: return StringEncoding::ShiftJIS;
    }
}

std::optional<Contents> read(std::FILE* stream, std::int32_t deviceType) {
    TokenReader reader(stream);
    Contents contents;
    if (!readVersion(reader, contents) || !readDeviceType(reader, contents, deviceType) ||
        !readLanguageCode(reader, contents))
        return std::nullopt;
    const StringEncoding encoding = encodingForLanguageCode(contents.encoding);
    if (!readComment(reader, contents, encoding)) return std::nullopt;
    readOptions(reader, contents, encoding);
    if (contents.options.empty()) return std::nullopt;
    return contents;
}

}  // namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat
