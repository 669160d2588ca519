/* A stand-in for the printer maker's encoding library: hexadecimal text, reversible, with
 * failures chosen by the input so that callers' error paths can be reached. Built without
 * its decode entry point (STAND_IN_WITHOUT_DECODE) it stands for an incomplete library. */

#include <string.h>

static int startsWith(const char* text, int length, const char* prefix) {
    int prefixLength = (int)strlen(prefix);
    return length >= prefixLength && memcmp(text, prefix, (size_t)prefixLength) == 0;
}

int encryption_encode_guess_count(const char* input, int inputLength, int* outputCount) {
    if (startsWith(input, inputLength, "guess-fail")) return 11;
    *outputCount = 2 * inputLength;
    return 0;
}

int encryption_encode(const char* input, int inputLength, char* output, int* outputCount) {
    static const char digits[] = "0123456789abcdef";
    if (startsWith(input, inputLength, "encode-fail")) return 12;
    if (*outputCount < 2 * inputLength) return 13;
    for (int index = 0; index < inputLength; ++index) {
        unsigned char byte = (unsigned char)input[index];
        output[2 * index] = digits[byte >> 4];
        output[2 * index + 1] = digits[byte & 0x0F];
    }
    *outputCount = 2 * inputLength;
    return 0;
}

int encryption_decode_guess_count(const char* input, int inputLength, int* outputCount) {
    (void)input;
    if (inputLength % 2 != 0) return 21;
    *outputCount = inputLength / 2;
    return 0;
}

#ifndef STAND_IN_WITHOUT_DECODE
static int hexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

int encryption_decode(const char* input, int inputLength, char* output, int* outputCount) {
    int length = inputLength / 2;
    if (*outputCount < length) return 23;
    for (int index = 0; index < length; ++index) {
        int high = hexValue(input[2 * index]);
        int low = hexValue(input[2 * index + 1]);
        if (high < 0 || low < 0) return 24;
        output[index] = (char)(high * 16 + low);
    }
    if (startsWith(output, length, "decode-fail")) return 22;
    /* A library that answers a different text: the caller must notice. */
    if (startsWith(output, length, "mismatch")) output[0] = 'M';
    *outputCount = length;
    return 0;
}
#endif
