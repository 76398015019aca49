#include "canvas/qt/ValueStepper.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace tessaly {

ValueStepper::ValueStepper(const StopValueTraits& traits, QWidget* parent) : QDoubleSpinBox{parent} {
    // A value set by the rules is kept to the last digit, not rounded to what a text could show.
    constexpr int allDecimals = 15;
    setDecimals(traits.decimal ? allDecimals : 0);
    setRange(0.0, traits.maximum);
    setSingleStep(traits.step);
    lineEdit()->hide();
    setFocusPolicy(Qt::NoFocus); // the field beside it has the keyboard, and steps with the same keys
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ValueStepper::setValue(double value) {
    const QSignalBlocker notByTheUser{this};
    QDoubleSpinBox::setValue(value);
}

QSize ValueStepper::sizeHint() const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect{0, 0, 200, QDoubleSpinBox::sizeHint().height()};
    const QRect up = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    return {option.rect.right() + 1 - up.left() + 2, option.rect.height()};
}

void ValueStepper::stepBy(int steps) {
    const double before = value();
    QDoubleSpinBox::stepBy(steps);
    if (value() != before) {
        Q_EMIT steppedByUser();
    }
}

} // namespace tessaly
