#include "core/Bundle.h"

#include <dlfcn.h>

#include <filesystem>

#include "core/Diagnostics.h"
#include "core/FileUtil.h"
#include "core/PlistIO.h"

namespace ComQuorvantVelmar_Plugin {

std::shared_ptr<Bundle> Bundle::bundleWithPath(const std::string& path) {
    if (!FileUtil::isDirectory(path + "/Contents")) return nullptr;
    PlistDictionary info;
    if (auto parsed = PlistIO::readFile(path + "/Contents/Info.plist"); parsed && parsed->dictionary())
        info = *parsed->dictionary();
    return std::shared_ptr<Bundle>(new Bundle(path, std::move(info)));
}

Bundle::Bundle(std::string path, PlistDictionary info) : _path(std::move(path)), _info(std::move(info)) {
    while (_path.size() > 1 && _path.back() == '/') _path.pop_back();
}

std::string Bundle::resourcePath() const { return _path + "/Contents/Resources"; }

std::string Bundle::builtInPlugInsPath() const { return _path + "/Contents/PlugIns"; }

std::string Bundle::executablePath() const {
    std::string executable = _info.stringFor("CFBundleExecutable", "");
    if (executable.empty()) return {};
    return _path + "/Contents/Linux/" + executable + ".so";
}

std::string Bundle::pathForResource(std::string_view name, std::string_view type) const {
    if (name.empty()) return {};
    std::string path = resourcePath() + "/" + std::string(name);
    if (!type.empty()) path += "." + std::string(type);
    return FileUtil::exists(path) ? path : std::string();
}

const PlistValue* Bundle::objectForInfoDictionaryKey(std::string_view key) const {
    return _info.find(key);
}

std::string Bundle::bundleName() const {
    if (auto name = _info.stringFor("CFBundleName")) return *name;
    return std::filesystem::path(_path).stem().string();
}

std::string Bundle::bundleIdentifier() const { return _info.stringFor("CFBundleIdentifier", ""); }

std::string Bundle::principalClassName() const { return _info.stringFor("NSPrincipalClass", ""); }

bool Bundle::load() {
    if (_loaded) return true;
    const std::string executable = executablePath();
    if (!executable.empty()) {
        // The bundle's classes register themselves while the shared object is opened; it
        // stays open for the life of the process, as the classes may be in use anywhere.
        if (!::dlopen(executable.c_str(), RTLD_NOW | RTLD_LOCAL)) {
            const char* reason = ::dlerror();
            Diagnostics::log("### cannot load bundle " + _path + ": " + (reason ? reason : "unknown"));
            return false;
        }
    }
    _loaded = true;
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin
