#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "core/Alert.h"
#include "core/ModalWindow.h"
#include "pde/InMemoryPdeHost.h"
#include "pde/TarnPDEByCocoa.h"

namespace PanelTest {

using namespace ComQuorvantVelmar_Plugin;

/// The sample press PPD of the product bundle assembled in the build tree.
std::string samplePpdPath();
/// The sample PPD opened with its defaults marked, as a new job starts; nullptr on failure.
std::unique_ptr<PpdFileExt> openSamplePpd();

/// key's value in dictionary as text, a boolean as "True" or "False"; "<absent>" when absent.
std::string textOf(const PlistDictionary& dictionary, const std::string& key);

/// Plays the user's part in every modal window with play, until the next call; an empty
/// play restores the runner that shows nothing.
void runWindowsWith(std::function<void(ModalWindow&)> play);

/// A panel of the product bundle over an in-memory host holding the sample PPD: the bundle
/// registered, a new pane manager, questions answered from a script, no modal runner. Everything goes back to nothing with the object.
class PanelScope {
public:
    explicit PanelScope(InMemoryPdeHost::Flavour flavour = InMemoryPdeHost::Flavour::WithPpdChangeHook,
                        std::deque<int> answers = {});
    ~PanelScope();
    PanelScope(const PanelScope&) = delete;
    PanelScope& operator=(const PanelScope&) = delete;

    InMemoryPdeHost& host() { return *_host; }
    TarnPDEByCocoa& panel() { return *_panel; }
    PanePlugInMgr& manager();
    const std::vector<AlertRequest>& asked() const { return _presenter->asked(); }
    void queueAnswer(int answer) { _presenter->queue(answer); }
    /// A new panel over the same host and manager, as the dialog's next opening makes one.
    void reopenPanel();

    /// The panel's model value of key, as textOf gives it.
    std::string option(const std::string& key) { return textOf(_panel->printOption(), key); }
    /// The custom entry of key as stored (escaped); nothing when absent.
    std::optional<std::string> storedCustom(const std::string& key);
    /// The print settings' value of key as text; nothing when absent.
    std::optional<std::string> setting(const std::string& key);
    /// The PPD's marked choice of option as text; nothing when none.
    std::optional<std::string> marked(const std::string& option);
    /// Changes key as the user does: the rule engine hears the new value.
    void userChanges(const std::string& key, const std::string& value);

private:
    std::shared_ptr<ScriptedAlertPresenter> _presenter;
    std::unique_ptr<InMemoryPdeHost> _host;
    std::shared_ptr<TarnPDEByCocoa> _panel;
};

}  // namespace PanelTest
