#include "core/AboutBox.h"

#include <string_view>

#include "core/Bundle.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::string infoString(const Bundle& bundle, std::string_view key) {
    const PlistValue* value = bundle.objectForInfoDictionaryKey(key);
    const std::string* text = value ? value->string() : nullptr;
    return text ? *text : std::string();
}

// The keys read as English formats, so a text without a catalogue still reads right.
std::string filled(std::string_view formatKey, const std::string& value) {
    if (value.empty()) return {};
    std::string format = BSLocalizedString(formatKey);
    if (format.empty()) format = formatKey;
    if (const auto position = format.find("%@"); position != std::string::npos) format.replace(position, 2, value);
    return format;
}

}  // namespace

AboutBox::AboutBox(const Bundle* bundle) {
    if (!bundle) return;
    _productName = infoString(*bundle, "CFBundleDisplayName");
    if (_productName.empty()) _productName = bundle->bundleName();
    _versionText = filled("Version %@", infoString(*bundle, "CFBundleShortVersionString"));
    _buildText = filled("Build %@", infoString(*bundle, "CFBundleVersion"));
    const std::string iconFile = infoString(*bundle, "CFBundleIconFile");
    if (!iconFile.empty()) _iconPath = bundle->pathForResource(iconFile, "");
}

}  // namespace ComQuorvantVelmar_Plugin
