#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

#include "TestSupport.h"
#include "core/PlistValue.h"
#include "qt/QtDialogs.h"

namespace QtDialogTest {

using namespace ComQuorvantVelmar_Plugin;

/// Runs action once on the first modal window of type T that is shown while the object
/// lives, from inside that window's event loop, as a user would act on it.
template <class T>
class WhenShown {
public:
    explicit WhenShown(std::function<void(T&)> action) : _action(std::move(action)) {
        QObject::connect(&_timer, &QTimer::timeout, [this] { poll(); });
        _timer.start(10);
    }
    bool ran() const { return _ran; }

private:
    void poll() {
        auto* window = qobject_cast<T*>(QApplication::activeModalWidget());
        if (!window || !window->isVisible()) return;
        _timer.stop();
        _ran = true;
        _action(*window);
    }

    std::function<void(T&)> _action;
    QTimer _timer;
    bool _ran = false;
};

/// A private home for one test of the Qt dialogs: configuration and data folders in a
/// temporary folder, the product bundle registered with its English strings, and the Qt
/// dialogs installed as the GUI installs them.
class DialogWindowTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Installs the dialogs; the setting tree's nodes are resolved by resolver (the
    /// process's pane plug-in manager for nullptr).
    void install(std::shared_ptr<PaneTreeResolver> resolver = nullptr);
    QtDialogs& dialogs() const { return *_dialogs; }

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

/// Clicks the button of widget's window titled title; false when there is none.
bool clickButton(QWidget& window, const QString& title);

}  // namespace QtDialogTest
