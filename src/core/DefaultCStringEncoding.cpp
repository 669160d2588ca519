#include "core/DefaultCStringEncoding.h"

#include "core/TextCharacters.h"

namespace ComQuorvantVelmar_Plugin {

// Default C-string encoding: UTF-8 whatever the locale; each ill-formed byte converts lossily to "?".
std::string toDefaultCString(std::string_view text) {
    return TextCharacters::withIllFormedBytesReplaced(text, '?');
}

std::size_t lengthByBytes(std::string_view text) { return toDefaultCString(text).size(); }

}  // namespace ComQuorvantVelmar_Plugin
