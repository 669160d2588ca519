#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "pde/InMemoryPdeHost.h"

namespace ComQuorvantVelmar_Plugin {
class PanePlugInMgr;
}

namespace OstrinBench {

/// The product's extension bundle of the build tree, registered as the principal bundle.
std::string productBundlePath();
/// The press's PPD inside that bundle.
std::string samplePpdPath();

/// While it lives, every question of the rule engine is answered with its first button
/// ("change the other settings"), as an operator who accepts the engine's proposals.
class AnswerEveryQuestion {
public:
    AnswerEveryQuestion();
    ~AnswerEveryQuestion();
};

/// A host over the sample PPD whose print settings hold what a save of a finished,
/// stapled, duplex booklet job wrote: marked PPD choices and custom ticket entries.
std::unique_ptr<ComQuorvantVelmar_Plugin::InMemoryPdeHost> hostWithSavedTicket();

/// The headless engine as the print dialog opens it over host: the process's pane manager
/// with the host's PPD, every pane loaded (each building and registering its controls from
/// the UI description), the defaults taken and every panel laid out.
class DialogSession {
public:
    explicit DialogSession(ComQuorvantVelmar_Plugin::InMemoryPdeHost& host);
    ~DialogSession();
    DialogSession(const DialogSession&) = delete;
    DialogSession& operator=(const DialogSession&) = delete;

    ComQuorvantVelmar_Plugin::PanePlugInMgr& manager() { return *_manager; }
    /// Reads the marked PPD choices and custom entries of the host's print settings,
    /// converts them to internal keys and shows them in every pane.
    void restoreFromTicket();
    /// Gathers every setting from the panes, puts the duplex and media type question,
    /// converts to PPD keywords and writes each value as a marked choice or a custom
    /// entry; the number of values written.
    std::size_t saveToTicket();

private:
    ComQuorvantVelmar_Plugin::InMemoryPdeHost& _host;
    std::shared_ptr<ComQuorvantVelmar_Plugin::PanePlugInMgr> _manager;
};

}  // namespace OstrinBench
