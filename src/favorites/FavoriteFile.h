#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// One favorite: a named set of print options kept as a small text file "<name>.pqz".
class FavoriteFile {
public:
    /// An empty favorite (version -1, device type 0, language code -1, no comment or options).
    FavoriteFile() = default;
    /// The favorite read from path; empty when path is empty, missing or not a favorite
    /// this printer can use.
    static FavoriteFile favoriteFileWithContentsOfFile(const std::string& path);
    /// The same as a constructor.
    explicit FavoriteFile(const std::string& path);

    /// Writes the options and comment to path in the local text encoding, replacing any
    /// previous file only once the new one is complete; a favorite without options is not
    /// written. Answers true in every case; a failure is logged, and the previous file is
    /// then left as it was.
    bool writeToFile(const std::string& path) const;

    std::int32_t version() const { return _version; }
    void setVersion(std::int32_t version) { _version = version; }
    std::int32_t iotType() const { return _iotType; }
    void setIotType(std::int32_t iotType) { _iotType = iotType; }
    std::int32_t encoding() const { return _encoding; }
    void setEncoding(std::int32_t encoding) { _encoding = encoding; }
    /// The comment, or nothing.
    const std::optional<std::string>& comment() const { return _comment; }
    void setComment(std::optional<std::string> comment) { _comment = std::move(comment); }
    /// The print options, or nothing.
    const std::optional<PlistDictionary>& options() const { return _options; }
    void setOptions(std::optional<PlistDictionary> options) { _options = std::move(options); }

    /// name + " (Classic)", the name of a favorite of the older driver generation; nothing
    /// for nothing.
    static std::optional<std::string> nameAppendingClassic(const std::optional<std::string>& name);
    /// folder + "/" + name + ".pqz"; nothing when either is absent.
    static std::optional<std::string> pathWithName(const std::optional<std::string>& name,
                                                   const std::optional<std::string>& folder);
    /// The favorite name of path: its last component without the extension; nothing for nothing.
    static std::optional<std::string> nameWithPath(const std::optional<std::string>& path);
    /// name + ".pqz"; nothing for nothing.
    static std::optional<std::string> stringByAppendingExtension(const std::optional<std::string>& name);
    /// Whether path ends in ".pqz" (case-sensitive).
    static bool hasExtension(const std::string& path);

private:
    std::int32_t _version = -1;
    std::int32_t _iotType = 0;
    std::int32_t _encoding = -1;
    std::optional<std::string> _comment;
    std::optional<PlistDictionary> _options;
};

}  // namespace ComQuorvantVelmar_Plugin
