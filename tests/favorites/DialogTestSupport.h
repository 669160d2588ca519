#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "FavoriteTestSupport.h"
#include "TestSupport.h"
#include "core/Alert.h"
#include "core/FileChooser.h"
#include "core/ModalWindow.h"

namespace OstrinTest {

/// A private home for one dialog test: configuration and data folders in a temporary
/// folder, the product's English strings, and scripted answers for alerts, file requests
/// and modal runs.
class DialogTest : public ::testing::Test {
protected:
    void SetUp() override {
        using namespace ComQuorvantVelmar_Plugin;
        useProductStrings("en");
        Alerts::setPresenter(alerts);
        FileChoosers::setPresenter(files);
        ModalWindows::setRunner(runner);
    }
    void TearDown() override {
        using namespace ComQuorvantVelmar_Plugin;
        Alerts::setPresenter(nullptr);
        FileChoosers::setPresenter(nullptr);
        ModalWindows::setRunner(nullptr);
    }

    /// The product's favorites folder below the private configuration folder.
    std::string favoriteFolder() const { return _home.file("config/Quorvant/OstrinFlow/PDE/favorite"); }
    /// The private trash's files folder.
    std::string trashFolder() const { return _home.file("data/Trash/files"); }
    /// A path in the private home, outside the favorites folder.
    std::string file(const std::string& name) const { return _home.file(name); }

    std::shared_ptr<ComQuorvantVelmar_Plugin::ScriptedAlertPresenter> alerts =
        std::make_shared<ComQuorvantVelmar_Plugin::ScriptedAlertPresenter>();
    std::shared_ptr<ComQuorvantVelmar_Plugin::ScriptedFileChooserPresenter> files =
        std::make_shared<ComQuorvantVelmar_Plugin::ScriptedFileChooserPresenter>();
    std::shared_ptr<ComQuorvantVelmar_Plugin::ScriptedModalWindowRunner> runner =
        std::make_shared<ComQuorvantVelmar_Plugin::ScriptedModalWindowRunner>();

private:
    TemporaryDirectory _home;
    EnvironmentOverride _configHome{"XDG_CONFIG_HOME", _home.file("config")};
    EnvironmentOverride _dataHome{"XDG_DATA_HOME", _home.file("data")};
};

}  // namespace OstrinTest
