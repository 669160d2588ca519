#include "PaneTestSupport.h"

#include <stdexcept>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"

namespace PaneTest {

std::string fixtureBundlePath() { return OSTRIN_PANES_FIXTURE_DIR; }

std::string productBundlePath() { return OSTRIN_BUILD_BUNDLE_DIR; }

ManagerScope::ManagerScope(const std::string& bundlePath, bool loadPanes) {
    auto bundle = Bundle::bundleWithPath(bundlePath);
    SetNSBundleForPrincipalBundle(bundle);
    SetNSBundleForLocalizedString(bundle);
    PanePlugInMgr::setSharedInstance(nullptr);
    _manager = PanePlugInMgr::sharedInstance();
    if (loadPanes) _manager->loadPlugIns();
}

ManagerScope::~ManagerScope() {
    _manager.reset();
    PanePlugInMgr::setSharedInstance(nullptr);
    SetNSBundleForPrincipalBundle(nullptr);
    SetNSBundleForLocalizedString(nullptr);
}

std::vector<std::string> ManagerScope::paneNames() const {
    std::vector<std::string> names;
    if (const auto* table = _manager->plugInTable())
        for (const auto& [name, entry] : *table) names.push_back(name);
    return names;
}

std::shared_ptr<PanePlugInInterface> ManagerScope::pane(const std::string& name) const {
    if (const auto* table = _manager->plugInTable())
        for (const auto& [key, entry] : *table)
            if (key == name) return entry.paneConroller;
    return nullptr;
}

TestRecordingPane& ManagerScope::recording(const std::string& name) const {
    return dynamic_cast<TestRecordingPane&>(*pane(name));
}

std::shared_ptr<VORNUI> ManagerScope::control(const std::string& name, const std::string& key) const {
    const auto loaded = pane(name);
    const auto controls = loaded ? loaded->getListVORNUI() : std::nullopt;
    for (const auto& each : controls ? *controls : std::vector<std::shared_ptr<VORNUI>>{})
        if (each->mainKeyword() == key) return each;
    return nullptr;
}

std::vector<std::string> popupChoices(const VORNUI& control) {
    std::vector<std::string> choices;
    for (const auto& item : control.popupItems()) choices.push_back(item.choice);
    return choices;
}

std::string TestRecordingPane::panelName() { return _name; }

std::shared_ptr<ViewNode> TestRecordingPane::panelView() {
    _calls.push_back("panelView");
    return _view;
}

bool TestRecordingPane::initializePanel(const std::shared_ptr<Bundle>& bundle, PanePlugInMgr& callback) {
    _name = bundle->bundleName();
    _calls.push_back("initializePanel");
    callback.buildPaneUi(*this, bundle);
    return true;
}

void TestRecordingPane::willShow() {
    _calls.push_back("willShow");
    if (!_failure.empty()) throw std::runtime_error(_failure);
}

std::optional<ProfileUiInformations> TestRecordingPane::profileUiInformations() {
    _calls.push_back("profileUiInformations");
    ProfileUiInformation tone;
    tone.fmtOptionKeywod = "Tone%d";
    tone.profileNo_Max = 3;
    tone.profileUiControl = _toneMenu;
    tone.fmtProfileLeftValue = "Tone%dName";
    return ProfileUiInformations{{"Tone", tone}};
}

void TestRecordingPane::writeAutomaticPapaerTraySelection() { _calls.push_back("writeAutomaticPapaerTraySelection"); }

void TestRecordingPane::updateEnabledStates(const std::optional<std::string>&, bool, bool useServerSetting, bool) {
    _calls.push_back(useServerSetting ? "updateEnabledStates:server" : "updateEnabledStates");
}

void TestRecordingPane::revertToDefault() { _calls.push_back("revertToDefault"); }

int TestRecordingPane::panelViewCount() const {
    return static_cast<int>(std::count(_calls.begin(), _calls.end(), "panelView"));
}

OSTRIN_REGISTER_CLASS("TestRecordingPane", TestRecordingPane)

AlertScript::AlertScript(std::deque<int> answers)
    : _presenter(std::make_shared<ScriptedAlertPresenter>(std::move(answers))) {
    Alerts::setPresenter(_presenter);
}

AlertScript::~AlertScript() { Alerts::setPresenter(nullptr); }

Language::Language(const std::string& language) { PreferredLanguages::setFirst(language); }

Language::~Language() { PreferredLanguages::setFirst("en"); }

DiagnosticLines::DiagnosticLines() {
    Diagnostics::setObserver([this](std::string_view line) { _lines.emplace_back(line); });
}

DiagnosticLines::~DiagnosticLines() { Diagnostics::setObserver({}); }

bool DiagnosticLines::contains(std::string_view text) const {
    for (const std::string& line : _lines)
        if (line.find(text) != std::string::npos) return true;
    return false;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) end = text.size();
        if (end > start) lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

}  // namespace PaneTest
