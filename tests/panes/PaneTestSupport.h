#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Alert.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PlainPopUpButton.h"
#include "settings_ui/VORNUI.h"
#include "settings_ui/ViewNode.h"

namespace PaneTest {

using namespace ComQuorvantVelmar_Plugin;

/// The fixture extension bundle assembled in the build tree.
std::string fixtureBundlePath();
/// The product's extension bundle assembled in the build tree.
std::string productBundlePath();

class TestRecordingPane;

/// Registers the bundle at bundlePath as the extension bundle and makes a new manager the
/// process's one (its panes loaded when loadPanes); afterwards the manager is dropped and
/// the bundle registrations are cleared, so no test sees another's manager.
class ManagerScope {
public:
    explicit ManagerScope(const std::string& bundlePath, bool loadPanes = true);
    ~ManagerScope();
    ManagerScope(const ManagerScope&) = delete;
    ManagerScope& operator=(const ManagerScope&) = delete;

    PanePlugInMgr& manager() { return *_manager; }
    /// Names of the loaded panes in table order.
    std::vector<std::string> paneNames() const;
    /// The controller loaded under name, or nullptr.
    std::shared_ptr<PanePlugInInterface> pane(const std::string& name) const;
    /// The recording controller loaded under name.
    TestRecordingPane& recording(const std::string& name) const;
    /// The setting control of key in the pane loaded under name, or nullptr.
    std::shared_ptr<VORNUI> control(const std::string& name, const std::string& key) const;

private:
    std::shared_ptr<PanePlugInMgr> _manager;
};

/// A built-in pane class for fixture bundles that records what the manager asks of it. It
/// offers one profile menu ("Tone", numbered options "Tone1" ... "Tone3", named in a
/// profile file under "Tone1Name" ...).
class TestRecordingPane : public PanePlugInInterface {
public:
    std::string panelName() override;
    std::shared_ptr<ViewNode> panelView() override;
    bool initializePanel(const std::shared_ptr<Bundle>& bundle, PanePlugInMgr& callback) override;
    void willShow() override;
    std::optional<ProfileUiInformations> profileUiInformations() override;
    void writeAutomaticPapaerTraySelection() override;
    void updateEnabledStates(const std::optional<std::string>& fileType, bool unifiedFileType, bool useServerSetting,
                             bool sameSettingForNext) override;
    void revertToDefault() override;

    const std::vector<std::string>& calls() const { return _calls; }
    /// How often the panel was asked for.
    int panelViewCount() const;
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

/// Answers the engine's questions from a script for the life of the object.
class AlertScript {
public:
    explicit AlertScript(std::deque<int> answers = {});
    ~AlertScript();
    const std::vector<AlertRequest>& asked() const { return _presenter->asked(); }

private:
    std::shared_ptr<ScriptedAlertPresenter> _presenter;
};

/// Sets the first preferred language for the life of the object, then returns to English.
class Language {
public:
    explicit Language(const std::string& language);
    ~Language();
};

/// Collects the diagnostic lines logged during its life.
class DiagnosticLines {
public:
    DiagnosticLines();
    ~DiagnosticLines();
    const std::vector<std::string>& lines() const { return _lines; }
    bool contains(std::string_view text) const;

private:
    std::vector<std::string> _lines;
};

/// The choices of control's pop-up items in order.
std::vector<std::string> popupChoices(const VORNUI& control);

/// The lines of text split at carriage returns and line feeds, empty lines left out.
std::vector<std::string> linesOf(const std::string& text);

}  // namespace PaneTest
