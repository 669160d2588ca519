#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// Button answers of a modal question: the first (default) and the second button.
enum AlertResponse : int { AlertFirstButtonReturn = 1000, AlertSecondButtonReturn = 1001 };

/// One modal question or message. Buttons are given in order; an empty list means "OK".
struct AlertRequest {
    enum class Style { Informational, Warning, Critical };
    std::string messageText;
    std::string informativeText;
    std::vector<std::string> buttons;
    Style style = Style::Warning;
};

/// Whatever shows modal questions: Qt dialogs, a terminal prompt, a script in tests.
class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;
    /// Shows request and answers the button pressed (1000, 1001, ...).
    virtual int runModal(const AlertRequest& request) = 0;
};

/// The one door through which the engine asks the user.
namespace Alerts {
/// Replaces the process-wide presenter; nullptr restores the default, which answers 1001
/// ("No") to every question, the safe choice when nobody can be asked.
void setPresenter(std::shared_ptr<AlertPresenter> presenter);
/// Shows request through the current presenter.
int runModal(const AlertRequest& request);
}  // namespace Alerts

/// Answers questions from a list given in advance and records what was asked.
class ScriptedAlertPresenter : public AlertPresenter {
public:
    explicit ScriptedAlertPresenter(std::deque<int> answers = {}, int fallback = AlertSecondButtonReturn)
        : _answers(std::move(answers)), _fallback(fallback) {}
    int runModal(const AlertRequest& request) override;
    const std::vector<AlertRequest>& asked() const { return _asked; }
    void queue(int answer) { _answers.push_back(answer); }

private:
    std::deque<int> _answers;
    int _fallback;
    std::vector<AlertRequest> _asked;
};

}  // namespace ComQuorvantVelmar_Plugin
