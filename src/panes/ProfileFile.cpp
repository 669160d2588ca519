#include "panes/ProfileFile.h"

#include <iconv.h>

#include <cerrno>
#include <cstring>

#include "core/Diagnostics.h"
#include "core/FileUtil.h"

namespace ComQuorvantVelmar_Plugin::ProfileFile {
namespace {

constexpr int dosLatin1EncodingNumber = 0x410;  // code page 850 in the encoding numbers of the logs

// bytes converted from encoding to UTF-8; nothing when they are not valid in encoding.
std::optional<std::string> toUtf8(const std::string& bytes, const char* encoding, std::string& failure) {
    iconv_t converter = ::iconv_open("UTF-8", encoding);
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        failure = std::strerror(errno);
        return std::nullopt;
    }
    std::string output(bytes.size() * 4 + 4, '\0');
    char* input = const_cast<char*>(bytes.data());
    std::size_t inputLeft = bytes.size();
    char* out = output.data();
    std::size_t outLeft = output.size();
    const std::size_t result = ::iconv(converter, &input, &inputLeft, &out, &outLeft);
    if (result == static_cast<std::size_t>(-1)) failure = std::strerror(errno);
    ::iconv_close(converter);
    if (result == static_cast<std::size_t>(-1)) return std::nullopt;
    output.resize(output.size() - outLeft);
    return output;
}

// Every line loses its last two characters, the carriage return and line feed it is
// expected to end in; a last line without them loses two characters of its own, which
// profile files written by the press's tools rely on never happening.
PlistDictionary entriesOf(const std::string& text) {
    PlistDictionary entries;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        const std::string line = text.substr(start, end - start);
        start = end;
        const std::string content = line.size() > 2 ? line.substr(0, line.size() - 2) : std::string();
        const std::size_t equals = content.find('=');
        if (equals != std::string::npos) entries.set(content.substr(0, equals), content.substr(equals + 1));
    }
    return entries;
}

}  // namespace

std::optional<PlistDictionary> profileDictionaryWithContentsOfFile(const std::string& path) {
    if (path.empty()) return std::nullopt;
    auto bytes = FileUtil::readAll(path);
    if (!bytes) {
        Diagnostics::log("##### File not found: " + path + " not found");
        return std::nullopt;
    }
    std::string failure;
    auto text = toUtf8(*bytes, "UTF-8", failure);
    if (!text) text = toUtf8(*bytes, "CP850", failure);
    if (!text) {
        Diagnostics::logf("##### fail to read \"%s\" (encoding=%d, error=%s)", path.c_str(), dosLatin1EncodingNumber,
                          failure.c_str());
        return std::nullopt;
    }
    return entriesOf(*text);
}

}  // namespace ComQuorvantVelmar_Plugin::ProfileFile
