#include "core/EncodingLibrary.h"

#include <dlfcn.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <vector>

#include "core/Diagnostics.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

using GuessCount = int (*)(const char* input, int inputLength, int* outputCount);
using Transform = int (*)(const char* input, int inputLength, char* output, int* outputCount);

constexpr const char* libraryFileName = "/libencryption.so";

struct LibraryState {
    void* handle = nullptr;
    GuessCount encodeGuessCount = nullptr;
    Transform encodeText = nullptr;
    GuessCount decodeGuessCount = nullptr;
    Transform decodeText = nullptr;
    std::string* messageBuffer = nullptr;

    bool hasEntryPoint() const {
        return encodeGuessCount || encodeText || decodeGuessCount || decodeText;
    }
};

LibraryState& library() {
    static LibraryState state;
    return state;
}

// One direction of the library: its names in the printed lines and its two entry points.
struct Direction {
    const char* title;
    const char* guessName;
    const char* transformName;
    GuessCount guessCount;
    Transform transform;
};

// The texts are secrets (secure-print passwords): the log shows their sizes, never the texts.
std::string masked(const std::string& text) { return "(" + std::to_string(text.size()) + " bytes)"; }

int failed(const char* entryPoint, int error) {
    Diagnostics::logf("xxx %s() error=%d\n", entryPoint, error);
    return error;
}

int run(const Direction& direction, const std::string& text, std::string& result) {
    if (!direction.guessCount || !direction.transform) {
        Diagnostics::logf("xxx %s library not loaded\n", direction.title);
        return -1;
    }
    if (text.size() > static_cast<std::size_t>(INT_MAX)) return failed(direction.guessName, -1);
    const int length = static_cast<int>(text.size());
    int count = 0;
    if (int error = direction.guessCount(text.c_str(), length, &count)) return failed(direction.guessName, error);
    if (count < 0 || count == INT_MAX) return failed(direction.guessName, -1);
    std::vector<char> buffer(static_cast<std::size_t>(count) + 1, '\0');
    int written = count;
    if (int error = direction.transform(text.c_str(), length, buffer.data(), &written))
        return failed(direction.transformName, error);
    if (written < 0 || written > count) written = count;
    buffer[static_cast<std::size_t>(written)] = '\0';
    result.assign(buffer.data(), ::strnlen(buffer.data(), static_cast<std::size_t>(written)));
    Diagnostics::log(direction.title);
    Diagnostics::logf("\"%s\" -> \"%s\"\n", masked(text).c_str(), masked(result).c_str());
    return 0;
}

int openLibrary(const std::string& path) {
    void* handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const int error = errno;
        const char* reason = ::dlerror();
        Diagnostics::logf("xxx dlopen(%s) error %d\n", path.c_str(), error);
        Diagnostics::logf("xxx %s\n", reason ? reason : "unknown reason");
        return -1;
    }
    void* encodeGuessCount = ::dlsym(handle, "encryption_encode_guess_count");
    void* encodeText = ::dlsym(handle, "encryption_encode");
    void* decodeGuessCount = ::dlsym(handle, "encryption_decode_guess_count");
    void* decodeText = ::dlsym(handle, "encryption_decode");
    if (!encodeGuessCount || !encodeText || !decodeGuessCount || !decodeText) {
        Diagnostics::logf("xxx incomplete status %p, %p, %p, %p, %p\n", handle, encodeGuessCount,
                          encodeText, decodeGuessCount, decodeText);
        ::dlclose(handle);
        return -1;
    }
    LibraryState& state = library();
    state.handle = handle;
    state.encodeGuessCount = reinterpret_cast<GuessCount>(encodeGuessCount);
    state.encodeText = reinterpret_cast<Transform>(encodeText);
    state.decodeGuessCount = reinterpret_cast<GuessCount>(decodeGuessCount);
    state.decodeText = reinterpret_cast<Transform>(decodeText);
    return 0;
}

}  // namespace

void setEncDecMessageBuffer(std::string* buffer) { library().messageBuffer = buffer; }

int loadEncDec(const std::string& folder) {
    Diagnostics::logf("%s\n", folder.c_str());
    const std::string path = folder + libraryFileName;
    LibraryState& state = library();
    if (state.messageBuffer) *state.messageBuffer = path;
    if (state.handle || state.hasEntryPoint()) return 0;
    return openLibrary(path);
}

int encode(const std::string& text, std::string& encoded) {
    const LibraryState& state = library();
    return run({"ENCODE:", "encryption_encode_guess_count", "encryption_encode",
                state.encodeGuessCount, state.encodeText},
               text, encoded);
}

int decode(const std::string& text, std::string& decoded) {
    const LibraryState& state = library();
    return run({"DECODE:", "encryption_decode_guess_count", "encryption_decode",
                state.decodeGuessCount, state.decodeText},
               text, decoded);
}

// The entry points are forgotten with the handle: after closing they point into unmapped
// code, and a later load must open the library again.
void unloadEncDec() {
    LibraryState& state = library();
    if (state.handle) ::dlclose(state.handle);
    std::string* messageBuffer = state.messageBuffer;
    state = LibraryState();
    state.messageBuffer = messageBuffer;
}

int checkEncDec(const std::string& text, const std::string& folder, std::string& message) {
    if (loadEncDec(folder) != 0) {
        message = "checkEncDec:loadEncDec error";
        return -1;
    }
    std::string encoded;
    if (encode(text, encoded) != 0) {
        message = "checkEncDec:encode error";
        return -2;
    }
    std::string decoded;
    if (decode(encoded, decoded) != 0) {
        message = "checkEncDec:decode error";
        return -3;
    }
    unloadEncDec();
    const bool same = decoded == text;
    message = same ? "checkEncDec:OK" : "checkEncDec:NG";
    return same ? 0 : -4;
}

}  // namespace ComQuorvantVelmar_Plugin
