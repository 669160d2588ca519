#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>

namespace ComQuorvantVelmar_Plugin {

class TextFieldModel;

/// The state that every modal dialog of the engine shares: its window title, whether its
/// modal run goes on, the code it ended with (1 for OK, 0 for cancel) and the text field
/// that has the keyboard focus. The dialog's controller derives from it and ends the run
/// from its button actions.
class ModalWindow {
public:
    virtual ~ModalWindow() = default;

    const std::string& windowTitle() const { return _windowTitle; }
    void setWindowTitle(std::string title) { _windowTitle = std::move(title); }

    /// Shows the window through the process-wide runner until it ends; the code it ended
    /// with, 0 when it was closed without ending (or nobody can show it).
    int runModal();
    /// Ends the run with code and tells the stop observer.
    void stopModalWithCode(int code);
    /// Whether the window's modal run goes on.
    bool isRunning() const { return _running; }
    /// Called with the code when the run ends; the view layer leaves its event loop then.
    void setStopObserver(std::function<void(int)> observer) { _stopObserver = std::move(observer); }

    /// Whether the window stays on screen when a run ends, until orderOut: a window whose
    /// owner may run it again at once (an OK that the settings refuse) does not flicker
    /// away and back, and a message about the refusal is its sheet. False unless set.
    bool staysShownBetweenRuns() const { return _staysShown; }
    void setStaysShownBetweenRuns(bool stays) { _staysShown = stays; }
    /// Takes a window that stays shown between runs off the screen; tells the order-out
    /// observer.
    void orderOut();
    /// Called when the window goes off the screen; the view layer hides it then.
    void setOrderOutObserver(std::function<void()> observer) { _orderOutObserver = std::move(observer); }

    /// The field with the keyboard focus, or nullptr.
    const TextFieldModel* firstResponder() const { return _firstResponder; }
    void makeFirstResponder(const TextFieldModel* field) { _firstResponder = field; }

private:
    std::string _windowTitle;
    bool _running = false;
    int _endCode = 0;
    std::function<void(int)> _stopObserver;
    bool _staysShown = false;
    std::function<void()> _orderOutObserver;
    const TextFieldModel* _firstResponder = nullptr;
};

/// Whatever shows modal windows: the Qt layer, or a script in tests. runModal returns once
/// the window stopped or the user closed it.
class ModalWindowRunner {
public:
    virtual ~ModalWindowRunner() = default;
    virtual void runModal(ModalWindow& window) = 0;
};

/// The one door through which the engine runs its modal windows.
namespace ModalWindows {
/// Replaces the process-wide runner; nullptr restores the default, which shows nothing, so
/// that every window ends as cancelled when nobody can be asked.
void setRunner(std::shared_ptr<ModalWindowRunner> runner);
/// The current runner.
ModalWindowRunner& runner();
}  // namespace ModalWindows

/// Plays the user's part from a list of scripts given in advance, one per modal run; a run
/// without a script left ends as cancelled.
class ScriptedModalWindowRunner : public ModalWindowRunner {
public:
    using Script = std::function<void(ModalWindow&)>;
    void queue(Script script) { _scripts.push_back(std::move(script)); }
    void runModal(ModalWindow& window) override;
    /// How many modal runs were asked for.
    int runCount() const { return _runCount; }

private:
    std::deque<Script> _scripts;
    int _runCount = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
