#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/PlistValue.h"
#include "settings_ui/ConflictInfo.h"
#include "settings_ui/NotificationCenter.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;

/// The registry of live controls by main keyword and the rule engine behind them. Every
/// change of a control is checked against the rules its description carries: conflicts the
/// user may resolve by letting other settings change, conflicts that cannot be resolved,
/// enabling and disabling, logical sums, hiding and cooperation. Questions go through the
/// engine's alert interface; what changed is posted through NotifyUnit.
class VORNMgr {
public:
    using ControlList = std::vector<std::shared_ptr<VORNUI>>;
    using Registry = std::vector<std::pair<std::string, ControlList>>;

    /// An empty registry that observes nothing yet.
    VORNMgr();
    /// Stops every observation of the manager.
    ~VORNMgr();
    VORNMgr(const VORNMgr&) = delete;
    VORNMgr& operator=(const VORNMgr&) = delete;

    /// Installs the question "have the print server's lists been fetched?" that decides
    /// whether unresolvable conflicts apply (the pane manager answers it); without one the
    /// answer is no.
    static void setNetworkDataProbe(std::function<bool()> probe);

    /// Sets the bundle (or its resource folder) whose "UI" table localises the messages;
    /// the first call wins.
    void setPdeResourcePath(const std::string& path);
    const std::string& pdeResourcePath() const { return _pdeResourcePath; }
    bool isCollectiveChange() const { return _isCollectiveChange; }

    /// Registers control and its children under their main keywords and observes them.
    void addControl(const std::shared_ptr<VORNUI>& control);
    /// Main keyword -> controls, in order of registration.
    const Registry& getControlsDictionary() const { return _mainKeywordAndControls; }
    /// The controls of keyword, or nullptr when none is registered.
    const ControlList* controlsOf(const std::string& keyword) const;
    /// Handler of a control's notification: validates the name's setting, after writing
    /// the user information's "Paramater" when there is one. Rules that keep changing each
    /// other are cut off after 64 nested validations, with a diagnostic.
    void validateMainKeyword(const Notification& notification);

    /// Writes value into every control of keyword.
    void setStringValue(const std::string& keyword, const std::string& value);
    /// Value of keyword's first control; nothing when it has none.
    std::optional<std::string> getStringValue(const std::string& keyword);
    void updateOldValue(const std::string& keyword);
    /// Every keyword's value: a kept unsupported value, else the shown value, else "".
    PlistDictionary getAllValueDictionary();

    /// Saves all values under the local time ("2024-05-01T10:00:00") and answers that key.
    std::string backupSettings();
    /// Writes a saved set back (as a collective change) and forgets it.
    void restoreSettings(const std::string& key);
    const std::map<std::string, PlistDictionary>& backups() const { return _backups; }
    /// Every control shows its default (as a collective change).
    void setDefaults();
    /// Writes every value of settings, then validates each, as one collective change.
    void setSettings(const PlistDictionary& settings);

    /// Asks before keyword takes value from outside the panes; false when the user keeps
    /// the conflicting settings. The value itself is not written.
    bool validateBeforeChange(const std::string& keyword, const std::string& value,
                              const std::optional<std::string>& name);
    /// Resolves value's conflicts silently, writes value and answers the keywords changed
    /// on the way; nothing when nothing conflicted or no control is registered.
    std::optional<std::vector<std::string>> setStringValueWithRestoreConfliction(const std::string& keyword,
                                                                                 const std::string& value);

    /// Match of value against pattern: 0 none, 1 below a "__LESS__:" threshold, 2 above a
    /// "__GREATER__:" threshold, 3 equal.
    static int conflictedType(const std::string& pattern, const std::string& value);
    /// The threshold text of a less/greater match; "" otherwise.
    static std::string conflictedValue(const std::string& pattern, const std::string& value);
    /// The resolvable conflicts keyword would have with value; nothing when none.
    std::optional<ConflictInfo> conflictInfo(const std::string& keyword, const std::string& value);
    /// Conflicts of one pattern's rule dictionary, collected over all keywords.
    std::optional<ConflictInfo> findConflictInfo(const PlistDictionary& rules, int typeSelf,
                                                 const std::string& valueSelf);
    /// The first unresolvable conflict of one pattern's rule dictionary; nothing without
    /// the print server's lists.
    std::optional<ConflictInfo> findUnrestorableConflictInfo(const PlistDictionary& rules, int typeSelf,
                                                             const std::string& valueSelf);

    /// Checks keyword's current value for resolvable conflicts, asking the user; false when
    /// the value did not change or the user declined (the value is then reverted).
    bool validateAfterChange(const std::string& keyword, std::vector<std::string>& notificationNames);
    /// Reverts keyword after telling the user of an unresolvable conflict (false); false
    /// as well when the value did not change.
    bool validateUnrestorableConflict(const std::string& keyword, std::vector<std::string>& notificationNames);
    /// Applies the "logical_sum_condition" and "condition" rules of keyword's value.
    void conditionSetting(const std::string& keyword, std::vector<std::string>& notificationNames);
    /// Pushes the "cooperation" values of keyword's value into other controls.
    void cooperate(const std::string& keyword, std::vector<std::string>& notificationNames);
    /// Hides or shows the controls named by the "hide" rule of keyword's value.
    void hide(const std::string& keyword, std::vector<std::string>& notificationNames);

    /// Shows message with up to two buttons (empty titles add none); answers 1000 or 1001.
    int _alertDialogMessage(const std::string& message, const std::string& button1, const std::string& button2);

private:
    void _validateMainKeyword(const std::string& keyword, const std::optional<std::string>& newValue);
    VORNUI* firstControl(const std::string& keyword) const;
    std::string currentValue(const std::string& keyword) const;
    void applyRestore(const ConflictInfo& info, std::vector<std::string>& notificationNames);
    std::optional<ConflictInfo> searchUnrestorable(VORNUI& control, const std::string& value);

    // messages
    std::string localized(const std::string& key) const;
    std::string valueText(VORNUI& control, int type, const std::string& threshold);
    std::string conflictedLines(const ConflictInfo& info);
    std::string restoreLines(const ConflictInfo& info);
    std::string ownLine(VORNUI& control, const ConflictInfo& info);
    std::string unrestorableMessage(VORNUI& control, const ConflictInfo& info,
                                    const std::optional<std::string>& fallback);

    Registry _mainKeywordAndControls;
    std::unordered_map<std::string, std::size_t> _registryIndex;
    std::map<std::string, PlistDictionary> _backups;
    std::string _pdeResourcePath;
    std::shared_ptr<Bundle> _uiBundle;
    bool _isCollectiveChange = false;
    int _validationDepth = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
