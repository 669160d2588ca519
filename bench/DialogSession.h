#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "pde/InMemoryPdeHost.h"

namespace ComQuorvantVelmar_Plugin {
class PanePlugInMgr;
class TarnPDEByCocoa;
}  // namespace ComQuorvantVelmar_Plugin

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

/// A host over the sample PPD whose print settings hold what the panel's save of a
/// finished, stapled, duplex booklet job wrote: marked PPD choices and custom ticket
/// entries.
std::unique_ptr<ComQuorvantVelmar_Plugin::InMemoryPdeHost> hostWithSavedTicket();

/// The print dialog as it opens over host: the bundle's principal object answers the
/// "Ostrin Flow" panel, which loads every pane (each building and registering its controls
/// from the UI description) and takes the defaults; the panel then restores the job's
/// ticket, builds its own controls and shows the model, and every pane's panel is laid out.
class DialogSession {
public:
    /// The first opening in a process makes the pane manager; a later one finds it loaded.
    enum class Opening { First, Later };

    explicit DialogSession(ComQuorvantVelmar_Plugin::InMemoryPdeHost& host, Opening opening = Opening::First);
    ~DialogSession();
    DialogSession(const DialogSession&) = delete;
    DialogSession& operator=(const DialogSession&) = delete;

    ComQuorvantVelmar_Plugin::PanePlugInMgr& manager();
    ComQuorvantVelmar_Plugin::TarnPDEByCocoa& panel() { return *_panel; }
    /// The panel's save into the host's print settings; the number of entries they hold.
    std::size_t saveToTicket();

private:
    ComQuorvantVelmar_Plugin::InMemoryPdeHost& _host;
    std::shared_ptr<ComQuorvantVelmar_Plugin::TarnPDEByCocoa> _panel;
};

}  // namespace OstrinBench
