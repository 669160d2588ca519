#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ArgumentList.h"
#include "GlobalOptions.h"
#include "core/PlistValue.h"
#include "pde/HostOutcome.h"

namespace ComQuorvantVelmar_Plugin {
class PanePlugInMgr;
class PdeHost;
class TarnPDEByCocoa;
}  // namespace ComQuorvantVelmar_Plugin

namespace OstrinFlowCommand {

/// The settings a command line asks for: the favorite to start from, each -o KEY=VALUE
/// (internal keys) in order and the job name.
struct SettingsRequest {
    std::optional<std::string> favorite;
    std::vector<std::pair<std::string, std::string>> changes;
    std::optional<std::string> jobName;

    /// Takes --favorite NAME, -o KEY=VALUE (also --option) and --job-name TEXT out of
    /// arguments; a malformed -o is a usage error.
    static SettingsRequest take(ArgumentList& arguments);
};

/// The print dialog of one command run: the host of --queue, --ppd or the bundled sample
/// PPD, the extension's principal object and the one panel it answers, with the terminal's
/// alert presenter. Throws CommandError when the host or the bundle cannot be opened.
class PanelSession {
public:
    explicit PanelSession(const GlobalOptions& options);
    ~PanelSession();
    PanelSession(const PanelSession&) = delete;
    PanelSession& operator=(const PanelSession&) = delete;

    /// The defaults, then the favorite as the favorite pop-up applies it, each change as
    /// the user makes it (the rule engine's questions go to the alert presenter), the job
    /// name and the consistency check. ExitSuccess, or ExitRefused when the check fails or
    /// a conflict is left standing (the alert has said why). An unknown or unreadable
    /// favorite and a value that is no choice of its setting are input errors.
    int apply(const SettingsRequest& request);
    /// apply, then the panel's save into the print settings; ExitSuccess or ExitRefused.
    int applyAndSave(const SettingsRequest& request);

    ComQuorvantVelmar_Plugin::PdeHost& host() { return *_host; }
    ComQuorvantVelmar_Plugin::TarnPDEByCocoa& panel() { return *_panel; }

private:
    void applyFavorite(const std::string& name);
    void applyChange(const std::string& key, const std::string& value);
    void applyJobName(const std::string& jobName);

    std::unique_ptr<ComQuorvantVelmar_Plugin::PdeHost> _host;
    std::shared_ptr<ComQuorvantVelmar_Plugin::PanePlugInMgr> _manager;
    std::shared_ptr<ComQuorvantVelmar_Plugin::TarnPDEByCocoa> _panel;
    /// Keys without a setting, taken into the model as they are after the panes' values.
    ComQuorvantVelmar_Plugin::PlistDictionary _plainValues;
};

/// Throws the CommandError that a host's failure stands for; nothing for a success.
/// commandName names the command in the message of a host without a queue.
void requireDone(const ComQuorvantVelmar_Plugin::HostOutcome& outcome, const std::string& commandName);

}  // namespace OstrinFlowCommand
