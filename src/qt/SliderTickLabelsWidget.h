#pragma once

#include <QStringList>
#include <QWidget>

class QSlider;

namespace ComQuorvantVelmar_Plugin {

/// The row under a slider that shows each tick mark's label centred below its tick.
class SliderTickLabelsWidget : public QWidget {
    Q_OBJECT
public:
    /// Labels for the ticks of slider, from its minimum to its maximum.
    SliderTickLabelsWidget(QSlider* slider, QStringList labels, QWidget* parent);

    const QStringList& labels() const { return _labels; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int tickCentre(int tick) const;

    QSlider* _slider;
    QStringList _labels;
};

}  // namespace ComQuorvantVelmar_Plugin
