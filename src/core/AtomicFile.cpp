#include "core/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "core/Diagnostics.h"

namespace ComQuorvantVelmar_Plugin::AtomicFile {
namespace {

bool writeFully(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The replacement keeps the permissions of the file it replaces.
mode_t modeFor(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? (status.st_mode & 07777) : 0644;
}

}  // namespace

bool write(const std::string& path, std::string_view bytes) {
    std::string temporary = path + ".XXXXXX";
    int descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0) {
        Diagnostics::log("### cannot create a temporary file beside " + path + ": " +
                         std::strerror(errno));
        return false;
    }
    ::fchmod(descriptor, modeFor(path));
    bool written = writeFully(descriptor, bytes) && ::fsync(descriptor) == 0;
    written = ::close(descriptor) == 0 && written;
    if (written && ::rename(temporary.c_str(), path.c_str()) == 0) return true;
    Diagnostics::log("### cannot write " + path + ": " + std::strerror(errno));
    ::unlink(temporary.c_str());
    return false;
}

}  // namespace ComQuorvantVelmar_Plugin::AtomicFile
