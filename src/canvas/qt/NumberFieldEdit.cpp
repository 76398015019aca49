#include "canvas/qt/NumberFieldEdit.h"

#include <QKeyEvent>
#include <QValidator>

namespace tessaly {
namespace {

class FormatterValidator : public QValidator {
  public:
    FormatterValidator(NumberFormatter formatter, QObject* parent)
        : QValidator{parent}, formatter_{formatter} {}

    State validate(QString& text, int& /*position*/) const override {
        return formatter_.isPartialStringValid(text.toStdString()) ? Acceptable : Invalid;
    }

  private:
    NumberFormatter formatter_;
};

constexpr int pageSteps = 10;

int stepsFor(int key) {
    switch (key) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return pageSteps;
    case Qt::Key_PageDown:
        return -pageSteps;
    default:
        return 0;
    }
}

} // namespace

NumberFieldEdit::NumberFieldEdit(NumberFormatter formatter, int digits, QWidget* parent)
    : FieldEdit{digits, parent} {
    setValidator(new FormatterValidator{formatter, this});
    setAlignment(Qt::AlignRight);
}

void NumberFieldEdit::keyPressEvent(QKeyEvent* event) {
    if (const int steps = stepsFor(event->key()); steps != 0) {
        Q_EMIT stepped(steps);
        return;
    }
    FieldEdit::keyPressEvent(event);
}

} // namespace tessaly
