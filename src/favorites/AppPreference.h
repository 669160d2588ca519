#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// The facts of this product build that vary by host application: the names of the
/// resource files and of the folders in the preference paths, read from the plug-in's
/// "miscellaneous" resource. An empty application name stands for the plug-in's own
/// bundle name ("CFBundleName").
class AppPreference {
public:
    /// The one instance of the process.
    static AppPreference& sharedInstance();

    /// Resource name of the keyword conversion table, or nothing.
    std::optional<std::string> convertTableFileNameWithAppName(std::string_view appName = {}) const;
    /// Resource name of the pane tree description, or nothing.
    std::optional<std::string> panesTreeFileNameWithAppName(std::string_view appName = {}) const;
    /// File name of the press's PPD, or nothing.
    std::optional<std::string> ppdFileNameWithAppName(std::string_view appName = {}) const;
    /// Product folder in the preference paths, or nothing.
    std::optional<std::string> _productFolderNameWithAppName(std::string_view appName = {}) const;
    /// Sub-folder below the product folder, or nothing.
    std::optional<std::string> _subFolderNameWithAppName(std::string_view appName = {}) const;

    AppPreference(const AppPreference&) = delete;
    AppPreference& operator=(const AppPreference&) = delete;

private:
    AppPreference() = default;
    std::optional<std::string> _informationForKey(std::string_view key, std::string_view appName) const;
};

}  // namespace ComQuorvantVelmar_Plugin
