#include "core/FileUtil.h"

#include <sys/stat.h>

#include <fstream>
#include <sstream>

namespace ComQuorvantVelmar_Plugin::FileUtil {

std::optional<std::string> readAll(const std::string& path) {
    if (isDirectory(path)) return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) return std::nullopt;
    std::ostringstream content;
    content << stream.rdbuf();
    if (stream.bad()) return std::nullopt;
    return content.str();
}

bool exists(const std::string& path) {
    struct stat status {};
    return !path.empty() && ::stat(path.c_str(), &status) == 0;
}

bool isDirectory(const std::string& path) {
    struct stat status {};
    return !path.empty() && ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace ComQuorvantVelmar_Plugin::FileUtil
