#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "core/Alert.h"
#include "core/PlistValue.h"
#include "settings_ui/NotificationCenter.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

namespace SettingsTest {

using namespace ComQuorvantVelmar_Plugin;

/// The test bundle whose Info.plist names FixtureUI.plist as its UI description.
std::shared_ptr<Bundle> fixtureBundle();
/// The fixture's control descriptions by main keyword.
const PlistDictionary& fixtureDescriptions();
/// A control built from the fixture description of keyword, for pane.
std::shared_ptr<VORNUI> buildControl(const std::string& keyword, const std::string& pane = "");
/// The product bundle assembled in the build tree (catalogues, UI description).
std::string productBundlePath();

/// Registers control as a pane does: adds it, then posts its keyword and its children's.
void registerLikeAPane(VORNMgr& manager, const std::shared_ptr<VORNUI>& control);
/// A manager localising its messages through the product bundle, with the fixture's
/// controls of keywords built and registered in that order.
std::unique_ptr<VORNMgr> managerWith(const std::vector<std::string>& keywords);

/// The user picks choice in the pop-up of keyword, as a click does.
void choose(VORNMgr& manager, const std::string& keyword, const std::string& choice);
/// The user clicks the check box of keyword.
void click(VORNMgr& manager, const std::string& keyword);
/// The choices of control's pop-up items in order.
std::vector<std::string> popupChoices(const VORNUI& control);

/// Records, in order, every post of the given names.
class NotificationRecorder {
public:
    explicit NotificationRecorder(const std::vector<std::string>& names);
    ~NotificationRecorder();
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    const std::vector<Notification>& received() const { return _received; }
    std::vector<std::string> names() const;
    void clear() { _received.clear(); }

private:
    std::vector<Notification> _received;
};

/// Answers the engine's questions from a script for the life of the object.
class AlertScript {
public:
    explicit AlertScript(std::deque<int> answers = {}, int fallback = AlertSecondButtonReturn);
    ~AlertScript();
    const std::vector<AlertRequest>& asked() const { return _presenter->asked(); }
    std::string lastMessage() const { return asked().empty() ? std::string() : asked().back().messageText; }

private:
    std::shared_ptr<ScriptedAlertPresenter> _presenter;
};

/// Sets the first preferred language for the life of the object, then returns to English.
class Language {
public:
    explicit Language(const std::string& language);
    ~Language();
};

/// Makes the print server's lists count as fetched for the life of the object.
class NetworkData {
public:
    explicit NetworkData(bool initialized);
    ~NetworkData();
};

}  // namespace SettingsTest
