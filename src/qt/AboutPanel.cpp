#include "qt/AboutPanel.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "core/AboutBox.h"
#include "core/LocalizedString.h"
#include "qt/QtIcons.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr int iconEdge = 64;
constexpr int panelMargin = 24;
constexpr int minimumTextWidth = 220;

QLabel* centredLabel(const std::string& text, QWidget* parent) {
    auto* label = new QLabel(QString::fromStdString(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter);
    label->setVisible(!text.empty());
    return label;
}

}  // namespace

AboutPanel::AboutPanel(const AboutBox& about, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    // Without a title bar the panel needs an edge of its own against the windows behind it.
    auto* edge = new QFrame(this);
    edge->setFrameShape(QFrame::StyledPanel);
    _icon = new QLabel(edge);
    _icon->setAlignment(Qt::AlignHCenter);
    const QPixmap icon = QtIcons::pixmapFromResource(about.iconPath(), iconEdge);
    _icon->setPixmap(icon);
    _icon->setVisible(!icon.isNull());
    _name = centredLabel(about.productName(), edge);
    QFont heading = _name->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.3);
    _name->setFont(heading);
    _name->setMinimumWidth(minimumTextWidth);
    _version = centredLabel(about.versionText(), edge);
    _build = centredLabel(about.buildText(), edge);

    auto* content = new QVBoxLayout(edge);
    content->setContentsMargins(panelMargin, panelMargin, panelMargin, panelMargin);
    for (QLabel* part : {_icon, _name, _version, _build}) content->addWidget(part);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edge);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

AboutPanel* AboutPanel::showAboutPanel(QWidget* parent) {
    const AboutBox about(BSPrincipalBundle().get());
    auto* panel = new AboutPanel(about, parent);
    panel->setAttribute(Qt::WA_DeleteOnClose, true);
    panel->show();
    panel->activateWindow();
    return panel;
}

void AboutPanel::mousePressEvent(QMouseEvent* event) {
    QDialog::mousePressEvent(event);
    close();
}

// A panel without a title bar has no close button: it goes when the user turns elsewhere.
void AboutPanel::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible()) close();
}

}  // namespace ComQuorvantVelmar_Plugin
