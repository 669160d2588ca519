#include "ppd/PpdData.h"

#include <cups/cups.h>
#include <cups/ppd.h>
#include <zlib.h>

#include <cstdio>
#include <new>

#include "core/PlistIO.h"

namespace ComQuorvantVelmar_Plugin::PpdData {
namespace {

// The printer writes chunks that decode into this buffer, its last byte kept for the
// terminating zero libcups writes.
constexpr int ChunkBufferSize = 159;
constexpr std::size_t InitialOutputSize = 256;
constexpr std::size_t DoublingLimit = 2048;
constexpr std::size_t GrowthStep = 2048;
constexpr std::size_t LargestGrowableSize = 16777215;

// One inflate stream into a buffer that grows as the output needs it.
class ChunkInflater {
public:
    ChunkInflater() : _buffer(InitialOutputSize + 1, '\0') {
        _started = inflateInit(&_stream) == Z_OK;
    }
    ~ChunkInflater() {
        if (_started) inflateEnd(&_stream);
    }
    ChunkInflater(const ChunkInflater&) = delete;
    ChunkInflater& operator=(const ChunkInflater&) = delete;

    /// Inflates all of chunk; an inflate error is reported and the chunk left.
    void feed(const char* chunk, int size);
    /// The output so far; nothing when the stream could not start or memory ran out.
    std::optional<std::string> result() const;

private:
    std::size_t capacity() const { return _buffer.size() - 1; }
    bool grow();

    z_stream _stream{};
    std::string _buffer;
    std::size_t _used = 0;
    bool _started = false;
    bool _ended = false;
    bool _outOfMemory = false;
};

void ChunkInflater::feed(const char* chunk, int size) {
    if (!_started || _ended || _outOfMemory) return;
    _stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(chunk));
    _stream.avail_in = static_cast<uInt>(size);
    while (_stream.avail_in > 0) {
        if (_used == capacity() && !grow()) return;
        _stream.next_out = reinterpret_cast<Bytef*>(_buffer.data() + _used);
        _stream.avail_out = static_cast<uInt>(capacity() - _used);
        const int status = inflate(&_stream, Z_NO_FLUSH);
        _used = capacity() - _stream.avail_out;
        if (status == Z_STREAM_END) {
            _ended = true;
            return;
        }
        if (status != Z_OK) {
            std::fprintf(stderr, "ERROR: inflate returned %d (%s)\n", status,
                         _stream.msg ? _stream.msg : zError(status));
            return;
        }
    }
}

// Doubles a small buffer and adds a fixed step to a large one; a buffer beyond 16 MB
// stays as it is and the rest of the chunk is dropped.
bool ChunkInflater::grow() {
    const std::size_t size = capacity();
    if (size > LargestGrowableSize) return false;
    const std::size_t grown = size < DoublingLimit ? size * 2 : size + GrowthStep;
    try {
        _buffer.resize(grown + 1, '\0');
    } catch (const std::bad_alloc&) {
        _outOfMemory = true;
        return false;
    }
    return true;
}

std::optional<std::string> ChunkInflater::result() const {
    if (!_started || _outOfMemory) return std::nullopt;
    return _buffer.substr(0, _used);
}

ppd_attr_t* chunkAttribute(ppd_file_t* ppd, const std::string& name, unsigned index) {
    char attributeName[PPD_MAX_NAME];
    std::snprintf(attributeName, sizeof attributeName, "%s%04X", name.c_str(), index);
    return ppdFindAttr(ppd, attributeName, nullptr);
}

}  // namespace

std::optional<std::string> ppdxReadData(ppd_file_t* ppd, std::string_view name) {
    const std::string dataName(name);
    if (!ppd || dataName.empty() || !chunkAttribute(ppd, dataName, 0)) return std::nullopt;
    ChunkInflater inflater;
    for (unsigned index = 0;; ++index) {
        ppd_attr_t* attribute = chunkAttribute(ppd, dataName, index);
        if (!attribute || !attribute->value) break;
        char decoded[ChunkBufferSize];
        int decodedSize = ChunkBufferSize;
        if (!httpDecode64_2(decoded, &decodedSize, attribute->value) || decodedSize <= 0) break;
        inflater.feed(decoded, decodedSize);
    }
    return inflater.result();
}

std::optional<PlistValue> propertyListForCommand(ppd_file_t* ppd, std::string_view command) {
    std::optional<std::string> data = ppdxReadData(ppd, command);
    if (!data) return std::nullopt;
    return PlistIO::parse(*data);
}

}  // namespace ComQuorvantVelmar_Plugin::PpdData
