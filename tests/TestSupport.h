#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace OstrinTest {

/// A fresh folder under the system's temporary folder, removed with the object.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "ostrin-test-XXXXXX").string();
        _path = ::mkdtemp(pattern.data()) ? pattern : std::string();
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::string& path() const { return _path; }
    std::string file(std::string_view name) const { return _path + "/" + std::string(name); }

private:
    std::string _path;
};

inline void writeFile(const std::string& path, std::string_view content) {
    std::ofstream stream(path, std::ios::binary);
    stream << content;
}

inline std::string readFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

inline std::string dataPath(std::string_view name) {
    return std::string(OSTRIN_TEST_DATA_DIR) + "/" + std::string(name);
}

/// What a shell command line printed (stdout and stderr together) and its exit status.
struct ShellResult {
    int exitCode = -1;
    std::string output;
};

/// Runs commandLine with /bin/sh and waits for it.
inline ShellResult runShell(const std::string& commandLine) {
    ShellResult result;
    std::FILE* pipe = ::popen((commandLine + " 2>&1").c_str(), "r");
    if (!pipe) return result;
    char buffer[4096];
    for (std::size_t count; (count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        result.output.append(buffer, count);
    const int status = ::pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

/// While it lives, no file that this process or a process it starts writes can grow beyond
/// bytes, as on a full disk; unlike a read-only folder, this holds for root as well.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &_saved);
        _savedHandler = ::signal(SIGXFSZ, SIG_IGN);
        struct rlimit tight = _saved;
        tight.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &_saved);
        ::signal(SIGXFSZ, _savedHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    struct rlimit _saved {};
    void (*_savedHandler)(int) = nullptr;
};

/// While it lives, the environment variable name holds value; then it holds what it held
/// before (or is unset again).
class EnvironmentOverride {
public:
    EnvironmentOverride(std::string name, const std::string& value) : _name(std::move(name)) {
        if (const char* previous = std::getenv(_name.c_str())) _previous = previous;
        ::setenv(_name.c_str(), value.c_str(), 1);
    }
    ~EnvironmentOverride() {
        if (_previous) ::setenv(_name.c_str(), _previous->c_str(), 1);
        else ::unsetenv(_name.c_str());
    }
    EnvironmentOverride(const EnvironmentOverride&) = delete;
    EnvironmentOverride& operator=(const EnvironmentOverride&) = delete;

private:
    std::string _name;
    std::optional<std::string> _previous;
};

}  // namespace OstrinTest
