#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// A directory bundle: Name.bundle/Contents/Info.plist, Contents/Resources/,
/// Contents/PlugIns/ (nested bundles) and Contents/Linux/<executable>.so when it has code.
class Bundle {
public:
    /// The bundle at path, or nullptr when path is not a folder with Contents/.
    static std::shared_ptr<Bundle> bundleWithPath(const std::string& path);

    const std::string& bundlePath() const { return _path; }
    std::string resourcePath() const;
    std::string builtInPlugInsPath() const;
    /// The shared object named by "CFBundleExecutable", or "" when the bundle has no code.
    std::string executablePath() const;
    /// Path of Resources/name.type (type may be empty), or "" when the file is missing.
    std::string pathForResource(std::string_view name, std::string_view type) const;

    const PlistDictionary& infoDictionary() const { return _info; }
    /// The information dictionary's value for key, or nullptr.
    const PlistValue* objectForInfoDictionaryKey(std::string_view key) const;
    /// "CFBundleName", else the folder name without its extension.
    std::string bundleName() const;
    /// "CFBundleIdentifier", or "".
    std::string bundleIdentifier() const;
    /// "NSPrincipalClass", or "".
    std::string principalClassName() const;

    /// Opens the shared object once, so that its classes register themselves; true when
    /// the bundle has no code or it is loaded. A failure is logged and answers false.
    bool load();
    bool isLoaded() const { return _loaded; }

private:
    Bundle(std::string path, PlistDictionary info);

    std::string _path;
    PlistDictionary _info;
    bool _loaded = false;
};

}  // namespace ComQuorvantVelmar_Plugin
