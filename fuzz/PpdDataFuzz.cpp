// Feeds arbitrary bytes to the reader of the data a printer stores in its PPD: the bytes
// become the data attributes of a PPD, either as a well-formed stream of arbitrary content,
// as a base64 stream that is no deflate stream, or as attribute text that is not even
// base64. Whatever the PPD carries, the panel gets bounded data or nothing, never a crash.
#include <cups/cups.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include "panes/PrinterDataPDEObject.h"
#include "ppd/PpdData.h"
#include "ppd/PpdDataEncoder.h"
#include "ppd/PpdFile.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

constexpr const char* Commands[] = {"FeederInfoList", "StackerInfoList", "DeviceList", "JobFolderList"};
constexpr std::size_t LargestOutput = 16777216;

// The payload, compressed well-formed.
std::string encodedLines(std::string_view name, std::string_view payload) {
    auto attributes = PpdDataEncoder::encode(name, payload);
    return attributes ? PpdDataEncoder::ppdLines(*attributes) : std::string();
}

// The payload itself as the deflate stream, cut into chunks and written in base64.
std::string base64Lines(std::string_view name, std::string_view payload) {
    std::string lines;
    for (std::size_t offset = 0, index = 0; offset < payload.size(); offset += PpdDataEncoder::ChunkSize, ++index) {
        const std::string_view chunk = payload.substr(offset, PpdDataEncoder::ChunkSize);
        char text[2 * PpdDataEncoder::ChunkSize + 8];
        httpEncode64_2(text, sizeof text, chunk.data(), static_cast<int>(chunk.size()));
        char attribute[64];
        std::snprintf(attribute, sizeof attribute, "*%.*s%04X: \"", static_cast<int>(name.size()), name.data(),
                      static_cast<unsigned>(index));
        lines += attribute + std::string(text) + "\"\n";
    }
    return lines;
}

// Each line of the payload as the text of one attribute, quotes taken out.
std::string literalLines(std::string_view name, std::string_view payload) {
    std::string lines;
    unsigned index = 0;
    while (!payload.empty()) {
        const std::size_t end = payload.find('\n');
        std::string value(payload.substr(0, end));
        std::erase(value, '"');
        char attribute[64];
        std::snprintf(attribute, sizeof attribute, "*%.*s%04X: \"", static_cast<int>(name.size()), name.data(), index++);
        lines += attribute + value + "\"\n";
        if (end == std::string_view::npos) break;
        payload.remove_prefix(end + 1);
    }
    return lines;
}

std::unique_ptr<PpdFile> ppdWith(const std::string& lines) {
    const int file = ::memfd_create("data.ppd", 0);
    if (file < 0) return nullptr;
    const std::string text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n" + lines;
    std::unique_ptr<PpdFile> ppd;
    if (::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()))
        ppd = PpdFile::initWithContentsOfFile("/proc/self/fd/" + std::to_string(file));
    ::close(file);
    return ppd;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view name = Commands[(data[0] >> 2) % std::size(Commands)];
    const std::string_view payload(reinterpret_cast<const char*>(data) + 1, size - 1);
    std::string lines;
    switch (data[0] % 3) {
        case 0: lines = encodedLines(name, payload); break;
        case 1: lines = base64Lines(name, payload); break;
        default: lines = literalLines(name, payload); break;
    }
    std::shared_ptr<const PpdFile> ppd = ppdWith(lines);
    if (!ppd) return 0;
    if (auto read = PpdData::ppdxReadData(ppd->ppdFile(), name); read && read->size() > LargestOutput)
        __builtin_trap();
    PrinterDataPDEObject printerData(ppd);
    for (const char* command : Commands) printerData.sendCommand(command);
    return 0;
}
