#include "canvas/qt/ValueStepper.h"

#include "foundation/NumberText.h"
#include "foundation/qt/ToQString.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace tessaly {

ValueStepper::ValueStepper(const StopValueTraits& traits, QWidget* parent) : QDoubleSpinBox{parent} {
    // A value set by the rules is kept to the last digit, not rounded to what a text could show.
    constexpr int allDecimals = 20;
    setDecimals(traits.decimal ? allDecimals : 0);
    connect(this, &QDoubleSpinBox::valueChanged, this, &ValueStepper::steppedByUser);
    setRange(0.0, traits.maximum);
    setSingleStep(traits.step);
    lineEdit()->hide();
    setFocusPolicy(Qt::NoFocus); // the field beside it has the keyboard, and steps with the same keys
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ValueStepper::setValue(double value) {
    if (value != QDoubleSpinBox::value()) { // the toolkit would write and read it all the same
        const QSignalBlocker notByTheUser{this};
        QDoubleSpinBox::setValue(value);
    }
}

QSize ValueStepper::sizeHint() const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect{0, 0, 200, QDoubleSpinBox::sizeHint().height()};
    const QRect up = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    return {option.rect.right() + 1 - up.left() + 2, option.rect.height()};
}

void ValueStepper::stepBy(int steps) {
    Q_EMIT aboutToStep();
    QDoubleSpinBox::stepBy(steps);
}

// Nobody sees it; assistive tools say it.
QString ValueStepper::textFromValue(double value) const {
    constexpr int shownDecimals = 3;
    return toQString(fixedText(value, decimals() > 0 ? shownDecimals : 0));
}

} // namespace tessaly
