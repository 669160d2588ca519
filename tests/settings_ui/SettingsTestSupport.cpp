#include "SettingsTestSupport.h"

#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"
#include "settings_ui/NotifyUnit.h"

namespace SettingsTest {

std::shared_ptr<Bundle> fixtureBundle() {
    static auto bundle = Bundle::bundleWithPath(OstrinTest::dataPath("settings_ui/Fixture.bundle"));
    return bundle;
}

const PlistDictionary& fixtureDescriptions() {
    static const PlistDictionary descriptions = [] {
        auto value = PlistIO::readFile(OstrinTest::dataPath("settings_ui/Fixture.bundle/Contents/Resources/FixtureUI.plist"));
        return value && value->dictionary() ? *value->dictionary() : PlistDictionary{};
    }();
    return descriptions;
}

std::shared_ptr<VORNUI> buildControl(const std::string& keyword, const std::string& pane) {
    auto control = std::make_shared<VORNUI>();
    const PlistValue* description = fixtureDescriptions().find(keyword);
    control->setControlDictionary(description ? description->dictionary() : nullptr, fixtureBundle());
    control->updateControl(pane);
    return control;
}

std::string productBundlePath() { return OSTRIN_BUILD_BUNDLE_DIR; }

void registerLikeAPane(VORNMgr& manager, const std::shared_ptr<VORNUI>& control) {
    manager.addControl(control);
    NotifyUnit::postNotificationName(control->mainKeyword());
    for (const auto& child : control->childControls()) NotifyUnit::postNotificationName(child->mainKeyword());
}

std::unique_ptr<VORNMgr> managerWith(const std::vector<std::string>& keywords) {
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(productBundlePath()));
    auto manager = std::make_unique<VORNMgr>();
    manager->setPdeResourcePath(productBundlePath() + "/Contents/Resources");
    for (const std::string& keyword : keywords) registerLikeAPane(*manager, buildControl(keyword));
    return manager;
}

void choose(VORNMgr& manager, const std::string& keyword, const std::string& choice) {
    auto control = manager.controlsOf(keyword)->front();
    const auto& items = control->popupItems();
    for (std::size_t index = 0; index < items.size(); ++index)
        if (items[index].choice == choice) control->selectItemAtIndex(static_cast<int>(index));
    control->popupButtonAction();
}

void click(VORNMgr& manager, const std::string& keyword) {
    auto control = manager.controlsOf(keyword)->front();
    control->setCheckBoxShownState(!control->checkBoxShownState());
    control->checkboxAction();
}

std::vector<std::string> popupChoices(const VORNUI& control) {
    std::vector<std::string> choices;
    for (const auto& item : control.popupItems()) choices.push_back(item.choice);
    return choices;
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

AlertScript::AlertScript(std::deque<int> answers, int fallback)
    : _presenter(std::make_shared<ScriptedAlertPresenter>(std::move(answers), fallback)) {
    Alerts::setPresenter(_presenter);
}

AlertScript::~AlertScript() { Alerts::setPresenter(nullptr); }

Language::Language(const std::string& language) { PreferredLanguages::setFirst(language); }

Language::~Language() { PreferredLanguages::setFirst("en"); }

NetworkData::NetworkData(bool initialized) {
    VORNMgr::setNetworkDataProbe([initialized] { return initialized; });
}

NetworkData::~NetworkData() { VORNMgr::setNetworkDataProbe(nullptr); }

}  // namespace SettingsTest
