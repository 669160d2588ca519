#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin {

class Bundle;

/// The about box: a titleless panel with the product's name and the version and build
/// strings of its bundle. It holds the texts; the view layer only shows them.
class AboutBox {
public:
    /// The texts of bundle's information dictionary, localised now; empty texts for nullptr.
    explicit AboutBox(const Bundle* bundle);

    /// "CFBundleDisplayName", else the bundle's name; "" without a bundle.
    const std::string& productName() const { return _productName; }
    /// "Version %@" localised and filled with "CFBundleShortVersionString"; "" when the
    /// bundle has no such string.
    const std::string& versionText() const { return _versionText; }
    /// "Build %@" localised and filled with "CFBundleVersion"; "" when the bundle has no
    /// such string.
    const std::string& buildText() const { return _buildText; }
    /// The path of the bundle's icon, the resource named by "CFBundleIconFile"; "" when the
    /// bundle names none or it is missing.
    const std::string& iconPath() const { return _iconPath; }

private:
    std::string _productName;
    std::string _versionText;
    std::string _buildText;
    std::string _iconPath;
};

}  // namespace ComQuorvantVelmar_Plugin
