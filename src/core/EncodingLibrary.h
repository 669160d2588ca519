#pragma once

#include <string>

// The printer maker's closed encoding library, "libencryption.so", opened at run time from a
// folder (the extension's resources). Its four C entry points return 0 on success, else an
// error number:
//   int encryption_encode_guess_count(const char* input, int inputLength, int* outputCount);
//   int encryption_encode(const char* input, int inputLength, char* output, int* outputCount);
//   int encryption_decode_guess_count(const char* input, int inputLength, int* outputCount);
//   int encryption_decode(const char* input, int inputLength, char* output, int* outputCount);
// The guess functions answer the output size; the others fill output (room for outputCount
// bytes and a NUL) and may lower outputCount to the bytes written.

namespace ComQuorvantVelmar_Plugin {

/// Registers the buffer that receives a copy of the library path on each load; nullptr for none.
void setEncDecMessageBuffer(std::string* buffer);
/// Opens the library in folder and finds its entry points; 0 on success or when already
/// open, -1 when it cannot be opened or lacks an entry point.
int loadEncDec(const std::string& folder);
/// encoded = the library's encoding of text; 0, the library's error number, or -1 when the
/// library is not open.
int encode(const std::string& text, std::string& encoded);
/// decoded = the library's decoding of text; 0, the library's error number, or -1 when the
/// library is not open.
int decode(const std::string& text, std::string& decoded);
/// Closes the library and forgets its entry points; nothing when it is not open.
void unloadEncDec();
/// Loads the library from folder and checks that text comes back from encode and decode;
/// 0 ("checkEncDec:OK"), -1 load, -2 encode, -3 decode failure, -4 a different text
/// ("checkEncDec:NG"); message receives the outcome.
int checkEncDec(const std::string& text, const std::string& folder, std::string& message);

}  // namespace ComQuorvantVelmar_Plugin
