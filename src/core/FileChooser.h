#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// One request for a file: an open sheet (an existing file) or a save sheet (a new path),
/// starting in directory, with a proposed file name for saving and the file name
/// extensions offered ("pqz"; empty offers every file).
struct FileChooserRequest {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    std::string directory;
    std::string proposedFileName;
    std::vector<std::string> allowedExtensions;
};

/// Whatever lets the user pick a file: Qt file dialogs, or a script in tests.
class FileChooserPresenter {
public:
    virtual ~FileChooserPresenter() = default;
    /// The chosen path, or nothing when the user cancelled.
    virtual std::optional<std::string> runModal(const FileChooserRequest& request) = 0;
};

/// The one door through which the engine asks the user for a file.
namespace FileChoosers {
/// Replaces the process-wide presenter; nullptr restores the default, which answers
/// nothing (cancelled) to every request.
void setPresenter(std::shared_ptr<FileChooserPresenter> presenter);
/// Shows request through the current presenter; the chosen path or nothing.
std::optional<std::string> runModal(const FileChooserRequest& request);
}  // namespace FileChoosers

/// Answers requests from a list given in advance and records what was asked; nothing
/// (cancelled) once the list is used up.
class ScriptedFileChooserPresenter : public FileChooserPresenter {
public:
    void queue(std::optional<std::string> answer) { _answers.push_back(std::move(answer)); }
    std::optional<std::string> runModal(const FileChooserRequest& request) override;
    const std::vector<FileChooserRequest>& asked() const { return _asked; }

private:
    std::deque<std::optional<std::string>> _answers;
    std::vector<FileChooserRequest> _asked;
};

}  // namespace ComQuorvantVelmar_Plugin
