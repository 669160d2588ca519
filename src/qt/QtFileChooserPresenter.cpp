#include "qt/QtFileChooserPresenter.h"

#include <QFileDialog>
#include <QStringList>

namespace ComQuorvantVelmar_Plugin {
namespace {

// "Favorites (*.pqz)" style filters: one naming every extension, then all files.
QStringList nameFilters(const std::vector<std::string>& extensions) {
    if (extensions.empty()) return {};
    QStringList patterns;
    for (const std::string& extension : extensions) patterns << QStringLiteral("*.") + QString::fromStdString(extension);
    return {patterns.join(QLatin1Char(' ')), QFileDialog::tr("All Files (*)")};
}

void prepare(QFileDialog& dialog, const FileChooserRequest& request) {
    const bool saving = request.kind == FileChooserRequest::Kind::Save;
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!request.directory.empty()) dialog.setDirectory(QString::fromStdString(request.directory));
    const QStringList filters = nameFilters(request.allowedExtensions);
    if (!filters.isEmpty()) dialog.setNameFilters(filters);
    if (saving && !request.allowedExtensions.empty())
        dialog.setDefaultSuffix(QString::fromStdString(request.allowedExtensions.front()));
    if (!request.proposedFileName.empty()) dialog.selectFile(QString::fromStdString(request.proposedFileName));
}

}  // namespace

std::optional<std::string> QtFileChooserPresenter::runModal(const FileChooserRequest& request) {
    QFileDialog dialog(_parentWindow);
    dialog.setWindowModality(_parentWindow ? Qt::WindowModal : Qt::ApplicationModal);
    prepare(dialog, request);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty()) return std::nullopt;
    return chosen.front().toStdString();
}

}  // namespace ComQuorvantVelmar_Plugin
