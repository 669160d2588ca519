#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PlistValue.h"
#include "core/PreferredLanguages.h"
#include "settings_ui/NotificationCenter.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

namespace SettingsTest {

using namespace ComQuorvantVelmar_Plugin;

/// The test bundle whose Info.plist names FixtureUI.plist as its UI description.
inline std::shared_ptr<Bundle> fixtureBundle() {
    static auto bundle = Bundle::bundleWithPath(OstrinTest::dataPath("settings_ui/Fixture.bundle"));
    return bundle;
}

/// The fixture's control descriptions by main keyword.
inline const PlistDictionary& fixtureDescriptions() {
    static const PlistDictionary descriptions = [] {
        auto value = PlistIO::readFile(OstrinTest::dataPath("settings_ui/Fixture.bundle/Contents/Resources/FixtureUI.plist"));
        return value && value->dictionary() ? *value->dictionary() : PlistDictionary{};
    }();
    return descriptions;
}

/// A control built from the fixture description of keyword, for pane.
inline std::shared_ptr<VORNUI> buildControl(const std::string& keyword, const std::string& pane = "") {
    auto control = std::make_shared<VORNUI>();
    const PlistValue* description = fixtureDescriptions().find(keyword);
    control->setControlDictionary(description ? description->dictionary() : nullptr, fixtureBundle());
    control->updateControl(pane);
    return control;
}

/// The product bundle assembled in the build tree (catalogues, UI description).
inline std::string productBundlePath() { return OSTRIN_BUILD_BUNDLE_DIR; }

/// Registers control as a pane does: adds it, then posts its keyword and its children's.
inline void registerLikeAPane(VORNMgr& manager, const std::shared_ptr<VORNUI>& control) {
    manager.addControl(control);
    NotifyUnit::postNotificationName(control->mainKeyword());
    for (const auto& child : control->childControls()) NotifyUnit::postNotificationName(child->mainKeyword());
}

/// A manager localising its messages through the product bundle, with the fixture's
/// controls of keywords built and registered in that order.
inline std::unique_ptr<VORNMgr> managerWith(const std::vector<std::string>& keywords) {
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(productBundlePath()));
    auto manager = std::make_unique<VORNMgr>();
    manager->setPdeResourcePath(productBundlePath() + "/Contents/Resources");
    for (const std::string& keyword : keywords) registerLikeAPane(*manager, buildControl(keyword));
    return manager;
}

/// The user picks choice in the pop-up of keyword, as a click does.
inline void choose(VORNMgr& manager, const std::string& keyword, const std::string& choice) {
    auto control = manager.controlsOf(keyword)->front();
    const auto& items = control->popupItems();
    for (std::size_t index = 0; index < items.size(); ++index)
        if (items[index].choice == choice) control->selectItemAtIndex(static_cast<int>(index));
    control->popupButtonAction();
}

/// The user clicks the check box of keyword.
inline void click(VORNMgr& manager, const std::string& keyword) {
    auto control = manager.controlsOf(keyword)->front();
    control->setCheckBoxShownState(!control->checkBoxShownState());
    control->checkboxAction();
}

/// The choices of control's pop-up items in order.
inline std::vector<std::string> popupChoices(const VORNUI& control) {
    std::vector<std::string> choices;
    for (const auto& item : control.popupItems()) choices.push_back(item.choice);
    return choices;
}

/// Records, in order, every post of the given names.
class NotificationRecorder {
public:
    explicit NotificationRecorder(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            NotifyUnit::addObserver(this, [this](const Notification& posted) { _received.push_back(posted); }, name);
    }
    ~NotificationRecorder() { NotifyUnit::removeObserver(this); }
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    const std::vector<Notification>& received() const { return _received; }
    std::vector<std::string> names() const {
        std::vector<std::string> list;
        for (const Notification& notification : _received) list.push_back(notification.name);
        return list;
    }
    void clear() { _received.clear(); }

private:
    std::vector<Notification> _received;
};

/// Answers the engine's questions from a script for the life of the object.
class AlertScript {
public:
    explicit AlertScript(std::deque<int> answers = {}, int fallback = AlertSecondButtonReturn)
        : _presenter(std::make_shared<ScriptedAlertPresenter>(std::move(answers), fallback)) {
        Alerts::setPresenter(_presenter);
    }
    ~AlertScript() { Alerts::setPresenter(nullptr); }
    const std::vector<AlertRequest>& asked() const { return _presenter->asked(); }
    std::string lastMessage() const { return asked().empty() ? std::string() : asked().back().messageText; }

private:
    std::shared_ptr<ScriptedAlertPresenter> _presenter;
};

/// Sets the first preferred language for the life of the object, then returns to English.
struct Language {
    explicit Language(const std::string& language) { PreferredLanguages::setFirst(language); }
    ~Language() { PreferredLanguages::setFirst("en"); }
};

/// Makes the print server's lists count as fetched (or not) for the life of the object.
struct NetworkData {
    explicit NetworkData(bool initialized) { VORNMgr::setNetworkDataProbe([initialized] { return initialized; }); }
    ~NetworkData() { VORNMgr::setNetworkDataProbe(nullptr); }
};

}  // namespace SettingsTest
