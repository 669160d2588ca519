#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "QtTestSupport.h"
#include "TestSupport.h"
#include "core/PlistValue.h"
#include "qt/QtDialogs.h"

namespace QtDialogTest {

using namespace ComQuorvantVelmar_Plugin;
using namespace QtWidgetTest;

/// A private home for one test of the Qt dialogs: configuration and data folders in a
/// temporary folder, the product bundle registered with its English strings, and the Qt
/// dialogs installed as the GUI installs them.
class DialogWindowTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Installs the dialogs anew; the setting tree's nodes are resolved by resolver (the
    /// process's pane plug-in manager for nullptr, as SetUp installs them).
    void install(std::shared_ptr<PaneTreeResolver> resolver = nullptr);

    /// The product's favorites folder below the private configuration folder.
    std::string favoriteFolder() const { return _home.file("config/Quorvant/OstrinFlow/PDE/favorite"); }
    /// The path of the favorite name in the favorites folder.
    std::string favorite(const std::string& name) const { return favoriteFolder() + "/" + name + ".pqz"; }
    /// A path in the private home, outside the favorites folder.
    std::string file(const std::string& name) const { return _home.file(name); }
    /// Writes a favorite file with comment and options (input-manager form) at path.
    static void writeFavorite(const std::string& path, const std::string& comment, const PlistDictionary& options);

private:
    OstrinTest::TemporaryDirectory _home;
    std::unique_ptr<QtDialogs> _dialogs;
};

}  // namespace QtDialogTest
