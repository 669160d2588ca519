#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "TestSupport.h"
#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/PlistValue.h"
#include "qt/ControlBodyWidget.h"
#include "qt/QtDialogs.h"
#include "qt/VORNUIWidget.h"
#include "settings_ui/NotificationCenter.h"
#include "settings_ui/VORNUI.h"

namespace QtWidgetTest {

using namespace ComQuorvantVelmar_Plugin;

/// The test bundle whose Info.plist names WidgetsUI.plist as its UI description.
std::shared_ptr<Bundle> widgetsBundle();
/// The product bundle assembled in the build tree (catalogues, UI description, images).
std::shared_ptr<Bundle> productBundle();
/// The control descriptions of bundle's UI description by main keyword.
PlistDictionary descriptionsOf(const Bundle& bundle);
/// A control built from the description of keyword in bundle (the widgets bundle by default).
std::shared_ptr<VORNUI> buildControl(const std::string& keyword, std::shared_ptr<Bundle> bundle = widgetsBundle());

/// Types text into widget character by character, as a keyboard with any layout does.
void typeText(QWidget* widget, const QString& text);

/// A shown window holding the view of one control, as a pane holds it.
class ShownControl {
public:
    explicit ShownControl(std::shared_ptr<VORNUI> control);
    VORNUIWidget& view() const { return *_view; }
    VORNUI& control() const { return *_view->control(); }
    /// The widget of the control's type, as type T; nullptr when it is of another type.
    template <class T>
    T* body() const { return qobject_cast<T*>(_view->body()); }

private:
    QWidget _window;
    VORNUIWidget* _view;
};

/// Records, in order, every post of the given names, with the "Paramater" it carried.
class NotificationRecorder {
public:
    explicit NotificationRecorder(const std::vector<std::string>& names);
    ~NotificationRecorder();
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    std::vector<std::string> names() const;
    /// The "Paramater" of the last post; "" when it had none.
    std::string lastParameter() const;

private:
    std::vector<Notification> _received;
};

/// Sets the first preferred language for the life of the object, then returns to English.
class Language {
public:
    explicit Language(const std::string& language);
    ~Language();
};

/// A private home for the life of the object: the configuration and data folders in a
/// temporary folder.
class PrivateHome {
public:
    PrivateHome();
    ~PrivateHome();
    PrivateHome(const PrivateHome&) = delete;
    PrivateHome& operator=(const PrivateHome&) = delete;
    /// A path in the home.
    std::string file(const std::string& name) const { return _folder.file(name); }

private:
    OstrinTest::TemporaryDirectory _folder;
};

/// A private home for one test of the Qt dialogs, the product bundle registered with its
/// English strings, and the Qt dialogs installed as the GUI installs them.
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
    PrivateHome _home;
    std::unique_ptr<QtDialogs> _dialogs;
};

/// Answers the engine's questions from a script for the life of the object.
class AlertScript {
public:
    explicit AlertScript(std::deque<int> answers = {});
    ~AlertScript();
    const std::vector<AlertRequest>& asked() const { return _presenter->asked(); }

private:
    std::shared_ptr<ScriptedAlertPresenter> _presenter;
};

/// Plays the user's part step by step from inside whatever event loop is running: each
/// step runs once its condition holds, in the order they were added.
class UserSteps {
public:
    UserSteps();
    void add(std::function<bool()> when, std::function<void()> action);
    /// Whether every step ran.
    bool finished() const { return _steps.empty(); }

private:
    void poll();

    std::deque<std::pair<std::function<bool()>, std::function<void()>>> _steps;
    QTimer _timer;
};

/// The active modal window as T, once it is shown; nullptr otherwise.
template <class T>
T* activeWindow() {
    auto* window = qobject_cast<T*>(QApplication::activeModalWidget());
    return window && window->isVisible() ? window : nullptr;
}

/// Runs action once on the first modal window of type T that is shown while the object
/// lives, from inside that window's event loop, as a user would act on it.
template <class T>
class WhenShown {
public:
    explicit WhenShown(std::function<void(T&)> action) {
        _steps.add([] { return activeWindow<T>() != nullptr; }, [action] { action(*activeWindow<T>()); });
    }
    bool ran() const { return _steps.finished(); }

private:
    UserSteps _steps;
};

/// Watches for the next modal message box and clicks its button titled buttonTitle,
/// recording what the box showed. A box without that button is closed instead.
class MessageBoxClicker {
public:
    /// An empty buttonTitle presses Escape instead of a button.
    explicit MessageBoxClicker(QString buttonTitle);
    bool clicked() const { return _clicked; }
    const QString& text() const { return _text; }
    const QString& informativeText() const { return _informativeText; }
    const QStringList& buttons() const { return _buttons; }
    bool wasWindowModal() const { return _windowModal; }
    QWidget* parentWindow() const { return _parentWindow; }

private:
    void answer(QMessageBox& box, const QString& buttonTitle);

    bool _clicked = false;
    bool _windowModal = false;
    QString _text;
    QString _informativeText;
    QStringList _buttons;
    QPointer<QWidget> _parentWindow;
    WhenShown<QMessageBox> _shown;
};

}  // namespace QtWidgetTest
