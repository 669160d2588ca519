#include "QtTestSupport.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>
#include <QVBoxLayout>

#include <cstdlib>
#include <filesystem>
#include <map>

#include "TestSupport.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteTestSupport.h"
#include "settings_ui/NotifyUnit.h"

namespace QtWidgetTest {

std::shared_ptr<Bundle> widgetsBundle() {
    static auto bundle = Bundle::bundleWithPath(OstrinTest::dataPath("qt/Widgets.bundle"));
    return bundle;
}

std::shared_ptr<Bundle> productBundle() {
    static auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    return bundle;
}

PlistDictionary descriptionsOf(const Bundle& bundle) {
    static std::map<std::string, PlistDictionary> read;
    if (auto known = read.find(bundle.bundlePath()); known != read.end()) return known->second;
    const auto info = PlistIO::readFile(bundle.bundlePath() + "/Contents/Info.plist");
    const std::string name = info && info->dictionary() ? info->dictionary()->stringFor("QVPOD", "") : "";
    const auto file = PlistIO::readFile(bundle.resourcePath() + "/" + name + ".plist");
    return read[bundle.bundlePath()] = file && file->dictionary() ? *file->dictionary() : PlistDictionary{};
}

void typeText(QWidget* widget, const QString& text) {
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QApplication::sendEvent(widget, &release);
    }
}

std::shared_ptr<VORNUI> buildControl(const std::string& keyword, std::shared_ptr<Bundle> bundle) {
    const PlistDictionary descriptions = descriptionsOf(*bundle);
    const PlistValue* description = descriptions.find(keyword);
    auto control = std::make_shared<VORNUI>();
    control->setControlDictionary(description ? description->dictionary() : nullptr, std::move(bundle));
    control->updateControl();
    return control;
}

ShownControl::ShownControl(std::shared_ptr<VORNUI> control) : _view(new VORNUIWidget(std::move(control), &_window)) {
    auto* layout = new QVBoxLayout(&_window);
    layout->addWidget(_view);
    _window.show();
    _window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&_window));
}

NotificationRecorder::NotificationRecorder(const std::vector<std::string>& names) {
    for (const std::string& name : names)
        NotifyUnit::addObserver(this, [this](const Notification& notification) { _received.push_back(notification); },
                                name);
}

NotificationRecorder::~NotificationRecorder() { NotifyUnit::removeObserver(this); }

std::vector<std::string> NotificationRecorder::names() const {
    std::vector<std::string> list;
    for (const Notification& notification : _received) list.push_back(notification.name);
    return list;
}

std::string NotificationRecorder::lastParameter() const {
    if (_received.empty() || !_received.back().userInfo) return {};
    return _received.back().userInfo->stringFor("Paramater", "");
}

Language::Language(const std::string& language) {
    SetNSBundleForLocalizedString(productBundle());
    PreferredLanguages::setFirst(language);
}

Language::~Language() { PreferredLanguages::setFirst("en"); }

PrivateHome::PrivateHome() {
    ::setenv("XDG_CONFIG_HOME", _folder.file("config").c_str(), 1);
    ::setenv("XDG_DATA_HOME", _folder.file("data").c_str(), 1);
}

PrivateHome::~PrivateHome() {
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("XDG_DATA_HOME");
}

void DialogWindowTest::SetUp() {
    OstrinTest::useProductStrings("en");
    install();
}

void DialogWindowTest::TearDown() {
    _dialogs.reset();
    SetNSBundleForPrincipalBundle(nullptr);
    SetNSBundleForLocalizedString(nullptr);
}

void DialogWindowTest::install(std::shared_ptr<PaneTreeResolver> resolver) {
    _dialogs.reset();
    _dialogs = std::make_unique<QtDialogs>(nullptr, std::move(resolver));
}

void DialogWindowTest::writeFavorite(const std::string& path, const std::string& comment,
                                     const PlistDictionary& options) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    FavoriteFile favorite;
    favorite.setComment(comment);
    favorite.setOptions(options);
    favorite.writeToFile(path);
}

AlertScript::AlertScript(std::deque<int> answers)
    : _presenter(std::make_shared<ScriptedAlertPresenter>(std::move(answers))) {
    Alerts::setPresenter(_presenter);
}

AlertScript::~AlertScript() { Alerts::setPresenter(nullptr); }

UserSteps::UserSteps() {
    QObject::connect(&_timer, &QTimer::timeout, [this] { poll(); });
    _timer.start(10);
}

void UserSteps::add(std::function<bool()> when, std::function<void()> action) {
    _steps.emplace_back(std::move(when), std::move(action));
}

void UserSteps::poll() {
    if (_steps.empty() || !_steps.front().first()) return;
    auto step = std::move(_steps.front());
    _steps.pop_front();
    step.second();
}

MessageBoxClicker::MessageBoxClicker(QString buttonTitle)
    : _shown([this, title = std::move(buttonTitle)](QMessageBox& box) { answer(box, title); }) {}

void MessageBoxClicker::answer(QMessageBox& box, const QString& buttonTitle) {
    _text = box.text();
    _informativeText = box.informativeText();
    _windowModal = box.windowModality() == Qt::WindowModal;
    _parentWindow = box.parentWidget();
    QAbstractButton* target = nullptr;
    for (QAbstractButton* button : box.buttons()) {
        _buttons.append(button->text());
        if (button->text() == buttonTitle) target = button;
    }
    if (buttonTitle.isEmpty()) {
        QTest::keyClick(&box, Qt::Key_Escape);
        return;
    }
    if (!target) {
        box.reject();
        return;
    }
    QTest::mouseClick(target, Qt::LeftButton);
    _clicked = true;
}

}  // namespace QtWidgetTest
