#include "PanelTestSupport.h"

#include <cstdlib>

#include "TestSupport.h"

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PrintSettings.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/NotifyUnit.h"

namespace PanelTest {
namespace {

// The panel lists and makes the user's favorites folder: the tests keep theirs private.
const OstrinTest::TemporaryDirectory privateHome;
const bool privateFolders = ::setenv("XDG_CONFIG_HOME", privateHome.file("config").c_str(), 1) == 0 &&
                            ::setenv("XDG_DATA_HOME", privateHome.file("data").c_str(), 1) == 0;

}  // namespace

std::string samplePpdPath() { return std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd"; }

std::unique_ptr<PpdFileExt> openSamplePpd() {
    auto ppd = PpdFileExt::initWithContentsOfFile(samplePpdPath());
    if (ppd) ppd->markDefaults();
    return ppd;
}

std::string textOf(const PlistDictionary& dictionary, const std::string& key) {
    const PlistValue* value = dictionary.find(key);
    if (!value) return "<absent>";
    if (const bool* flag = value->boolean()) return *flag ? "True" : "False";
    return value->stringOr("<not text>");
}

namespace {

class PlayingRunner : public ModalWindowRunner {
public:
    explicit PlayingRunner(std::function<void(ModalWindow&)> play) : _play(std::move(play)) {}
    void runModal(ModalWindow& window) override { _play(window); }

private:
    std::function<void(ModalWindow&)> _play;
};

}  // namespace

void runWindowsWith(std::function<void(ModalWindow&)> play) {
    ModalWindows::setRunner(play ? std::make_shared<PlayingRunner>(std::move(play)) : nullptr);
}

PanelScope::PanelScope(InMemoryPdeHost::Flavour flavour, std::deque<int> answers)
    : _presenter(std::make_shared<ScriptedAlertPresenter>(std::move(answers))),
      _host(std::make_unique<InMemoryPdeHost>(flavour, openSamplePpd())) {
    Alerts::setPresenter(_presenter);
    PanePlugInMgr::setSharedInstance(nullptr);
    auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    _panel = std::make_shared<TarnPDEByCocoa>(*_host, bundle);
}

PanelScope::~PanelScope() {
    _panel.reset();
    PanePlugInMgr::setSharedInstance(nullptr);
    runWindowsWith(nullptr);
    Alerts::setPresenter(nullptr);
    SetNSBundleForPrincipalBundle(nullptr);
    SetNSBundleForLocalizedString(nullptr);
}

PanePlugInMgr& PanelScope::manager() { return *PanePlugInMgr::sharedInstance(); }

void PanelScope::reopenPanel() {
    auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    _panel.reset();
    _panel = std::make_shared<TarnPDEByCocoa>(*_host, bundle);
}

std::optional<std::string> PanelScope::storedCustom(const std::string& key) {
    return setting(PrintSettingsTicket::customKey(key));
}

std::optional<std::string> PanelScope::setting(const std::string& key) {
    const PrintSettings* settings = _host->printSettings();
    return settings ? settings->text(key) : std::nullopt;
}

std::optional<std::string> PanelScope::marked(const std::string& option) {
    const PlistValue choice = _host->ppd()->findMarkedChoice(option);
    if (const bool* flag = choice.boolean()) return *flag ? "True" : "False";
    if (const std::string* text = choice.string()) return *text;
    return std::nullopt;
}

void PanelScope::userChanges(const std::string& key, const std::string& value) {
    NotifyUnit::postNotificationName(key, PlistDictionary{{"Paramater", value}});
}

}  // namespace PanelTest
