#pragma once

#include <algorithm>
#include <deque>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PlainPopUpButton.h"
#include "settings_ui/VORNUI.h"
#include "settings_ui/ViewNode.h"

namespace PaneTest {

using namespace ComQuorvantVelmar_Plugin;

/// The fixture extension bundle assembled in the build tree.
inline std::string fixtureBundlePath() { return OSTRIN_PANES_FIXTURE_DIR; }
/// The product's extension bundle assembled in the build tree.
inline std::string productBundlePath() { return OSTRIN_BUILD_BUNDLE_DIR; }

/// A built-in pane class for fixture bundles that records what the manager asks of it. It
/// offers one profile menu ("Tone", numbered options "Tone1" ... "Tone3", named in a
/// profile file under "Tone1Name" ...).
class TestRecordingPane : public PanePlugInInterface {
public:
    std::string panelName() override { return _name; }
    std::shared_ptr<ViewNode> panelView() override {
        _calls.push_back("panelView");
        return _view;
    }
    bool initializePanel(const std::shared_ptr<Bundle>& bundle, PanePlugInMgr& callback) override {
        _name = bundle->bundleName();
        _calls.push_back("initializePanel");
        callback.buildPaneUi(*this, bundle);
        return true;
    }
    void willShow() override {
        _calls.push_back("willShow");
        if (!_failure.empty()) throw std::runtime_error(_failure);
    }
    std::optional<ProfileUiInformations> profileUiInformations() override {
        _calls.push_back("profileUiInformations");
        ProfileUiInformation tone;
        tone.fmtOptionKeywod = "Tone%d";
        tone.profileNo_Max = 3;
        tone.profileUiControl = _toneMenu;
        tone.fmtProfileLeftValue = "Tone%dName";
        return ProfileUiInformations{{"Tone", tone}};
    }
    void writeAutomaticPapaerTraySelection() override { _calls.push_back("writeAutomaticPapaerTraySelection"); }
    void updateEnabledStates(const std::optional<std::string>&, bool, bool useServerSetting, bool) override {
        _calls.push_back(useServerSetting ? "updateEnabledStates:server" : "updateEnabledStates");
    }
    void revertToDefault() override { _calls.push_back("revertToDefault"); }

    const std::vector<std::string>& calls() const { return _calls; }
    /// How often the panel was asked for.
    int panelViewCount() const { return static_cast<int>(std::count(_calls.begin(), _calls.end(), "panelView")); }
    const std::shared_ptr<PlainPopUpButton>& toneMenu() const { return _toneMenu; }
    /// Makes willShow fail with reason from now on.
    void failWillShowWith(std::string reason) { _failure = std::move(reason); }

private:
    std::string _name;
    std::vector<std::string> _calls;
    std::shared_ptr<ViewNode> _view = std::make_shared<ViewNode>();
    std::shared_ptr<PlainPopUpButton> _toneMenu = std::make_shared<PlainPopUpButton>();
    std::string _failure;
};

/// Registers the bundle at bundlePath as the extension bundle and makes a new manager the
/// process's one (its panes loaded when loadPanes); afterwards the manager is dropped and
/// the bundle registrations are cleared, so no test sees another's manager.
class ManagerScope {
public:
    explicit ManagerScope(const std::string& bundlePath, bool loadPanes = true) {
        auto bundle = Bundle::bundleWithPath(bundlePath);
        SetNSBundleForPrincipalBundle(bundle);
        SetNSBundleForLocalizedString(bundle);
        PanePlugInMgr::setSharedInstance(nullptr);
        _manager = PanePlugInMgr::sharedInstance();
        if (loadPanes) _manager->loadPlugIns();
    }
    ~ManagerScope() {
        _manager.reset();
        PanePlugInMgr::setSharedInstance(nullptr);
        SetNSBundleForPrincipalBundle(nullptr);
        SetNSBundleForLocalizedString(nullptr);
    }
    ManagerScope(const ManagerScope&) = delete;
    ManagerScope& operator=(const ManagerScope&) = delete;

    PanePlugInMgr& manager() { return *_manager; }
    /// Names of the loaded panes in table order.
    std::vector<std::string> paneNames() const {
        std::vector<std::string> names;
        if (const auto* table = _manager->plugInTable())
            for (const auto& [name, entry] : *table) names.push_back(name);
        return names;
    }
    /// The controller loaded under name, or nullptr.
    std::shared_ptr<PanePlugInInterface> pane(const std::string& name) const {
        if (const auto* table = _manager->plugInTable())
            for (const auto& [key, entry] : *table)
                if (key == name) return entry.paneConroller;
        return nullptr;
    }
    /// The recording controller loaded under name.
    TestRecordingPane& recording(const std::string& name) const { return dynamic_cast<TestRecordingPane&>(*pane(name)); }
    /// The setting control of key in the pane loaded under name, or nullptr.
    std::shared_ptr<VORNUI> control(const std::string& name, const std::string& key) const {
        const auto loaded = pane(name);
        const auto controls = loaded ? loaded->getListVORNUI() : std::nullopt;
        for (const auto& each : controls ? *controls : std::vector<std::shared_ptr<VORNUI>>{})
            if (each->mainKeyword() == key) return each;
        return nullptr;
    }

private:
    std::shared_ptr<PanePlugInMgr> _manager;
};

/// Answers the engine's questions from a script for the life of the object.
class AlertScript {
public:
    explicit AlertScript(std::deque<int> answers = {})
        : _presenter(std::make_shared<ScriptedAlertPresenter>(std::move(answers))) {
        Alerts::setPresenter(_presenter);
    }
    ~AlertScript() { Alerts::setPresenter(nullptr); }
    const std::vector<AlertRequest>& asked() const { return _presenter->asked(); }

private:
    std::shared_ptr<ScriptedAlertPresenter> _presenter;
};

/// Sets the first preferred language for the life of the object, then returns to English.
struct Language {
    explicit Language(const std::string& language) { PreferredLanguages::setFirst(language); }
    ~Language() { PreferredLanguages::setFirst("en"); }
};

/// Collects the diagnostic lines logged during its life.
class DiagnosticLines {
public:
    DiagnosticLines() { Diagnostics::setObserver([this](std::string_view line) { _lines.emplace_back(line); }); }
    ~DiagnosticLines() { Diagnostics::setObserver({}); }
    bool contains(std::string_view text) const {
        return std::any_of(_lines.begin(), _lines.end(),
                           [text](const std::string& line) { return line.find(text) != std::string::npos; });
    }

private:
    std::vector<std::string> _lines;
};

/// The choices of control's pop-up items in order.
inline std::vector<std::string> popupChoices(const VORNUI& control) {
    std::vector<std::string> choices;
    for (const auto& item : control.popupItems()) choices.push_back(item.choice);
    return choices;
}

/// The lines of text split at carriage returns and line feeds, empty lines left out.
inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0, end; start <= text.size(); start = end + 1) {
        end = std::min(text.find_first_of("\r\n", start), text.size());
        if (end > start) lines.push_back(text.substr(start, end - start));
    }
    return lines;
}

}  // namespace PaneTest
