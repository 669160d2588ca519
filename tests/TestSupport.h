#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
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

}  // namespace OstrinTest
