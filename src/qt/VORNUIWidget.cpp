#include "qt/VORNUIWidget.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

#include "qt/ControlBodyWidget.h"
#include "qt/ControlParts_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

int pixels(double points) { return static_cast<int>(std::lround(points)); }

}  // namespace

VORNUIWidget::VORNUIWidget(std::shared_ptr<VORNUI> control, QWidget* parent)
    : QWidget(parent), _control(control ? std::move(control) : std::make_shared<VORNUI>()) {
    _control->setView(this);
    rebuild();
}

VORNUIWidget::~VORNUIWidget() {
    if (_control->view() == this) _control->setView(nullptr);
}

void VORNUIWidget::controlDidChange(const VORNUI&, VORNUIChange change) {
    switch (change) {
        case VORNUIChange::Built: rebuild(); break;
        case VORNUIChange::Enabled: showEnabled(); break;
        case VORNUIChange::Hidden: showHidden(); break;
        case VORNUIChange::Value:
        case VORNUIChange::Items:
        case VORNUIChange::Icon:
            if (_body) _body->showChange(change);
            break;
    }
}

// A rebuild may come from inside a handler of the widgets it replaces, so they leave later.
void VORNUIWidget::rebuild() {
    if (_own) {
        _own->hide();
        _own->deleteLater();
    }
    for (VORNUIWidget* child : _children) {
        child->hide();
        child->deleteLater();
    }
    _children.clear();
    _body = nullptr;
    _title = nullptr;
    _groupTitle = nullptr;
    _disclosure = nullptr;

    _own = new QWidget(this);
    auto* layout = new QVBoxLayout(_own);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    buildHeading(layout);
    buildTitle(layout);
    if (!_control->isOnlyTitle()) _body = ControlBodyWidget::create(*_control, _own);
    if (_body) {
        layout->addWidget(_body);
        _body->showChange(VORNUIChange::Built);
    }
    _own->show();
    buildChildren();
    showEnabled();
    showHidden();
    placeParts();
    updateGeometry();
}

void VORNUIWidget::buildHeading(QVBoxLayout* layout) {
    const bool folds = _control->isGroupMain() && !_control->childControls().empty();
    if (_control->texts().groupTitle.empty() && !folds) return;
    auto* row = new QWidget(_own);
    QHBoxLayout* parts = ControlParts::rowLayout(row);
    if (folds) {
        _disclosure = new QToolButton(row);
        _disclosure->setAutoRaise(true);
        _disclosure->setFixedSize(ControlParts::iconSize, ControlParts::iconSize);
        connect(_disclosure, &QToolButton::clicked, this, [this] {
            _control->disclosureTriangleAction();
            showDisclosure();
        });
        parts->addWidget(_disclosure);
        showDisclosure();
    }
    ControlParts::addPart(parts, ControlParts::iconLabel(_control->icons().group, row));
    _groupTitle = ControlParts::label(_control->texts().groupTitle, row);
    if (_groupTitle) {
        QFont bold = _groupTitle->font();
        bold.setBold(true);
        _groupTitle->setFont(bold);
        _groupTitle->setWordWrap(true);
        parts->addWidget(_groupTitle);
    }
    parts->addStretch();
    layout->addWidget(row);
}

// A check box carries its title itself, unless the control shows its title only.
void VORNUIWidget::buildTitle(QVBoxLayout* layout) {
    const bool titleAbove = _control->controlType() != VORNUI::Type::CheckBox || _control->isOnlyTitle();
    if (!titleAbove) return;
    _title = ControlParts::label(_control->texts().title, _own);
    if (!_title) return;
    _title->setFixedHeight(ControlParts::rowHeight);
    layout->addWidget(_title);
}

void VORNUIWidget::buildChildren() {
    for (const auto& child : _control->childControls()) _children.push_back(new VORNUIWidget(child, this));
}

void VORNUIWidget::showDisclosure() {
    if (_disclosure) _disclosure->setArrowType(_control->isCollapsed() ? Qt::RightArrow : Qt::DownArrow);
}

void VORNUIWidget::showEnabled() { _own->setEnabled(_control->isEnabled()); }

// A control without a parent widget is a window of its own; only hiding applies to it.
void VORNUIWidget::showHidden() {
    const bool hidden = _control->isHidden();
    if (parentWidget() || hidden) setVisible(!hidden);
}

int VORNUIWidget::ownHeight() const { return _own->layout()->sizeHint().height(); }

int VORNUIWidget::contentWidth() const {
    const double framed = _control->frame().width;
    if (framed > 0) return pixels(framed);
    return std::max(pixels(VORNUI::defaultWidth), _own->sizeHint().width());
}

// The control's children begin a fixed distance below its top, which leaves room above
// them; the control's own parts sit at the bottom of that room, next to the children they
// lead, so the room reads as the space before the group.
int VORNUIWidget::ownTop() const {
    if (_children.empty()) return 0;
    return std::max(0, pixels(VORNUI::childStartOffset) - ownHeight());
}

void VORNUIWidget::placeParts() {
    _own->setGeometry(0, ownTop(), std::max(QWidget::width(), contentWidth()), ownHeight());
    for (VORNUIWidget* child : _children) {
        const ViewFrame& frame = child->control()->frame();
        const QSize natural = child->sizeHint();
        const int childWidth = frame.width > 0 ? pixels(frame.width) : natural.width();
        child->setGeometry(pixels(frame.x), pixels(frame.y), childWidth,
                           std::max(pixels(frame.height), natural.height()));
    }
}

QSize VORNUIWidget::sizeHint() const {
    int height = std::max(pixels(_control->maxHeight()), ownTop() + ownHeight());
    for (const VORNUIWidget* child : _children) {
        const ViewFrame& frame = child->control()->frame();
        height = std::max(height, pixels(frame.y) + std::max(pixels(frame.height), child->sizeHint().height()));
    }
    return {contentWidth(), height};
}

void VORNUIWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeParts();
}

}  // namespace ComQuorvantVelmar_Plugin
