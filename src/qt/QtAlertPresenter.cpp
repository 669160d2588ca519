#include "qt/QtAlertPresenter.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <vector>

#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

QMessageBox::Icon iconOf(AlertRequest::Style style) {
    switch (style) {
        case AlertRequest::Style::Informational: return QMessageBox::Information;
        case AlertRequest::Style::Warning: return QMessageBox::Warning;
        case AlertRequest::Style::Critical: return QMessageBox::Critical;
    }
    return QMessageBox::Warning;
}

// A request without buttons is a message with OK alone.
std::vector<std::string> buttonTitles(const AlertRequest& request) {
    if (!request.buttons.empty()) return request.buttons;
    std::string ok = BSLocalizedString("OK");
    return {ok.empty() ? std::string("OK") : ok};
}

// The first button accepts, the second rejects; further ones are plain actions.
QMessageBox::ButtonRole roleOf(std::size_t index) {
    if (index == 0) return QMessageBox::AcceptRole;
    if (index == 1) return QMessageBox::RejectRole;
    return QMessageBox::ActionRole;
}

}  // namespace

int QtAlertPresenter::runModal(const AlertRequest& request) {
    QMessageBox box(_parentWindow);
    box.setWindowModality(_parentWindow ? Qt::WindowModal : Qt::ApplicationModal);
    box.setIcon(iconOf(request.style));
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(request.messageText));
    box.setInformativeText(QString::fromStdString(request.informativeText));
    // Messages are plain text: a "<" in a setting's name is no markup.
    if (auto* informative = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        informative->setTextFormat(Qt::PlainText);
    std::vector<QPushButton*> buttons;
    for (const std::string& title : buttonTitles(request))
        buttons.push_back(box.addButton(QString::fromStdString(title), roleOf(buttons.size())));
    box.setDefaultButton(buttons.front());
    box.setEscapeButton(buttons.size() > 1 ? buttons[1] : buttons.front());
    box.exec();
    const QAbstractButton* clicked = box.clickedButton();
    for (std::size_t index = 0; index < buttons.size(); ++index)
        if (buttons[index] == clicked) return AlertFirstButtonReturn + static_cast<int>(index);
    return buttons.size() > 1 ? AlertSecondButtonReturn : AlertFirstButtonReturn;
}

}  // namespace ComQuorvantVelmar_Plugin
