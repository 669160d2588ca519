#pragma once

#include <functional>
#include <string>

#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// What the windows that the panel runs modally share (the detailed settings window and
/// the tray sheets): a title, a frame, visibility, and a modal run that lasts until one
/// of the window's own operations stops it with a code (1 for OK, 0 for cancel).
class PdeModalWindow {
public:
    /// Shows a window until it stops or the user closes it: the view layer's event loop,
    /// or a script in tests.
    using Runner = std::function<void(PdeModalWindow&)>;

    virtual ~PdeModalWindow();

    /// Replaces the process-wide runner; an empty one restores the default, which shows
    /// nothing, so that every run ends as cancelled when nobody can be asked.
    static void setRunner(Runner runner);

    /// Runs the window through the runner; the code it was stopped with, 0 when it was
    /// closed without being stopped.
    int runModal();
    /// Ends the run with code.
    void stopModalWithCode(int code);
    bool isRunning() const { return _running; }

    const std::string& windowTitle() const { return _windowTitle; }
    void setWindowTitle(std::string title) { _windowTitle = std::move(title); }
    const ViewFrame& windowFrame() const { return _windowFrame; }
    void setWindowFrame(const ViewFrame& frame) { _windowFrame = frame; }
    bool isVisible() const { return _visible; }
    /// Hides the window (orderOut).
    void hideWindow() { _visible = false; }

private:
    std::string _windowTitle;
    ViewFrame _windowFrame;
    bool _visible = false;
    bool _running = false;
    int _endCode = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
