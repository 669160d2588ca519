#include "core/FileAttributes.h"

#include <algorithm>
#include <filesystem>

namespace ComQuorvantVelmar_Plugin {
namespace {

namespace fs = std::filesystem;

// The root folder is the one volume of this platform.
constexpr std::string_view volumeName = "/";

bool existsAsEntry(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

// Older file-system names may hold "/" but not ":", so the two characters trade places.
std::string classicComponent(std::string component) {
    std::ranges::replace(component, ':', '/');
    return component;
}

}  // namespace

std::string toClassicPath(std::string_view posixPath) {
    if (posixPath.empty()) return "";
    std::error_code error;
    const fs::path path = fs::absolute(fs::path(posixPath), error).lexically_normal();
    if (error || !existsAsEntry(path)) return "";
    std::string classic(volumeName);
    for (const fs::path& component : path.relative_path()) {
        if (component.empty()) continue;
        classic += ":" + classicComponent(component.string());
    }
    if (fs::is_directory(path, error)) classic += ":";
    return classic;
}

bool isFileInVisible(std::string_view path) {
    std::string trimmed(path);
    while (trimmed.size() > 1 && trimmed.back() == '/') trimmed.pop_back();
    const std::string name = fs::path(trimmed).filename().string();
    if (name.empty() || name == "." || name == ".." || name.front() != '.') return false;
    return existsAsEntry(trimmed);
}

}  // namespace ComQuorvantVelmar_Plugin
