#include "qt/PanelViewWidget.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "pde/PanelButton.h"
#include "pde/PanelLabel.h"
#include "qt/VORNUIWidget.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// A long job name would widen the whole panel; it is cut with an ellipsis instead and
// shown whole as the label's tool tip.
constexpr int widestLabel = 260;
// Columns of settings stand as far apart as groups of a form do.
constexpr int columnGap = 24;

// A container cut to a height (as the panel cuts its favorite row) no longer shows the
// views that begin at or below that height.
bool isCutOff(const ViewNode& view) {
    const ViewNode* container = view.superview();
    return container && container->frame().height > 0 && view.frame().y >= container->frame().height;
}

// A setting is laid out as wide as a pane's column; here it is as wide as what it shows,
// so that settings side by side stay close. One with settings of its own keeps its width.
void fitToContent(VORNUIWidget& setting) {
    if (!setting.childWidgets().empty()) return;
    setting.setMaximumWidth(setting.ownPart()->sizeHint().width());
}

void showLabel(const PanelLabel& label, QLabel& widget) {
    const QString text = QString::fromStdString(label.text());
    const QString shown = widget.fontMetrics().elidedText(text, Qt::ElideMiddle, widestLabel);
    widget.setText(shown);
    widget.setToolTip(shown == text ? QString() : text);
}

}  // namespace

PanelViewWidget::PanelViewWidget(std::shared_ptr<ViewNode> root, int settingColumns, QWidget* parent)
    : QWidget(parent), _root(std::move(root)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    std::vector<std::shared_ptr<ViewNode>> settings;
    for (const auto& view : _root ? _root->subviews() : std::vector<std::shared_ptr<ViewNode>>{}) {
        if (std::dynamic_pointer_cast<VORNUI>(view)) {
            settings.push_back(view);
            continue;
        }
        addSettings(settings, settingColumns, column);
        settings.clear();
        addToColumn(view, column);
    }
    addSettings(settings, settingColumns, column);
    column->addStretch(1);
    refresh();
}

void PanelViewWidget::addSettings(const std::vector<std::shared_ptr<ViewNode>>& settings, int columns,
                                  QBoxLayout* column) {
    if (settings.empty()) return;
    columns = std::max(1, columns);
    const std::size_t perColumn = (settings.size() + columns - 1) / columns;
    auto* sideBySide = new QHBoxLayout;
    for (std::size_t first = 0; first < settings.size(); first += perColumn) {
        if (first > 0) sideBySide->addSpacing(columnGap);
        auto* stack = new QVBoxLayout;
        for (std::size_t index = first; index < std::min(settings.size(), first + perColumn); ++index)
            stack->addWidget(render(settings[index], this, false));
        stack->addStretch(1);
        sideBySide->addLayout(stack);
    }
    sideBySide->addStretch(1);
    column->addLayout(sideBySide);
}

void PanelViewWidget::addToColumn(const std::shared_ptr<ViewNode>& view, QBoxLayout* column) {
    QWidget* widget = render(view, this, false);
    if (!std::dynamic_pointer_cast<PanelButton>(view)) {
        column->addWidget(widget);
        return;
    }
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(widget);
    column->addLayout(row);
}

// A row is listed before its views, so that refresh, going backwards, shows them first.
QWidget* PanelViewWidget::render(const std::shared_ptr<ViewNode>& view, QWidget* parent, bool inRow) {
    _order.push_back(view.get());
    QWidget* widget = nullptr;
    if (auto control = std::dynamic_pointer_cast<VORNUI>(view)) {
        widget = new VORNUIWidget(control, parent);
    } else if (auto button = std::dynamic_pointer_cast<PanelButton>(view)) {
        widget = renderButton(button, parent);
    } else if (std::dynamic_pointer_cast<PanelLabel>(view)) {
        auto* label = new QLabel(parent);
        label->setTextFormat(Qt::PlainText);
        widget = label;
    } else if (!view->subviews().empty()) {
        widget = renderRow(view, parent);
    } else {
        auto* line = new QFrame(parent);
        line->setFrameShape(inRow ? QFrame::VLine : QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        widget = line;
    }
    _shown[view.get()] = {view, widget, {}};
    return widget;
}

QWidget* PanelViewWidget::renderRow(const std::shared_ptr<ViewNode>& view, QWidget* parent) {
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& subview : view->subviews()) layout->addWidget(render(subview, row, true));
    layout->addStretch(1);
    return row;
}

QWidget* PanelViewWidget::renderButton(const std::shared_ptr<PanelButton>& button, QWidget* parent) {
    auto* widget = new QPushButton(parent);
    widget->setAutoDefault(false);
    const std::weak_ptr<PanelButton> target = button;
    connect(widget, &QPushButton::clicked, this, [this, target] {
        const QPointer<PanelViewWidget> self = this;
        if (auto pressed = target.lock()) pressed->performClick();
        if (self) emit actionRan();
    });
    return widget;
}

QWidget* PanelViewWidget::widgetFor(const ViewNode* view) const {
    const auto found = _shown.find(view);
    if (found == _shown.end() || found->second.view.lock().get() != view) return nullptr;
    return found->second.widget;
}

QPushButton* PanelViewWidget::buttonFor(const PanelButton& button) const {
    return qobject_cast<QPushButton*>(widgetFor(&button));
}

bool PanelViewWidget::insertBeside(const ViewNode& view, QWidget* widget, bool before) {
    QWidget* shown = widgetFor(&view);
    if (!shown || shown->parentWidget() == this) return false;
    auto* row = qobject_cast<QBoxLayout*>(shown->parentWidget()->layout());
    if (!row) return false;
    row->insertWidget(row->indexOf(shown) + (before ? 0 : 1), widget);
    _shown[&view].companions.push_back(widget);
    refresh();
    return true;
}

// Rows are shown after what they hold, so that a row whose views are all hidden goes too.
void PanelViewWidget::refresh() {
    for (auto view = _order.rbegin(); view != _order.rend(); ++view)
        if (QWidget* widget = widgetFor(*view)) show(**view, widget);
}

void PanelViewWidget::show(const ViewNode& view, QWidget* widget) const {
    bool visible = !view.isHiddenView() && !isCutOff(view);
    if (auto* button = dynamic_cast<const PanelButton*>(&view)) {
        auto* pushButton = static_cast<QPushButton*>(widget);
        pushButton->setText(QString::fromStdString(button->title()));
        pushButton->setEnabled(button->isEnabled());
    } else if (auto* label = dynamic_cast<const PanelLabel*>(&view)) {
        showLabel(*label, *static_cast<QLabel*>(widget));
    } else if (auto* control = dynamic_cast<const VORNUI*>(&view)) {
        visible = visible && !control->isHidden();
        fitToContent(*static_cast<VORNUIWidget*>(widget));
    } else if (!view.subviews().empty()) {
        bool anyShown = false;
        for (const auto& subview : view.subviews())
            if (QWidget* shown = widgetFor(subview.get())) anyShown = anyShown || !shown->isHidden();
        visible = visible && anyShown;
    }
    widget->setVisible(visible);
    for (const QPointer<QWidget>& companion : _shown.at(&view).companions)
        if (companion) companion->setVisible(visible);
}

}  // namespace ComQuorvantVelmar_Plugin
