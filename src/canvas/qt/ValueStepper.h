#pragma once

#include "canvas/ControlInterfaces.h"
#include "canvas/StopValue.h"

#include <QDoubleSpinBox>

namespace tessaly {

/// A stepper without a text of its own: two arrows that repeat while held. Its value stays within its bounds.
class ValueStepper : public QDoubleSpinBox, public Stepper {
    Q_OBJECT

  public:
    explicit ValueStepper(const StopValueTraits& traits, QWidget* parent = nullptr);

    double value() const override { return QDoubleSpinBox::value(); }
    void setValue(double value) override;
    void setEnabled(bool enabled) override { QWidget::setEnabled(enabled); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    void stepBy(int steps) override;
    QString textFromValue(double value) const override;

  Q_SIGNALS:
    /// The user is about to step: what is being typed beside comes first.
    void aboutToStep();
    /// The user, or an assistive tool, changed the value.
    void steppedByUser();
};

} // namespace tessaly
