#include "canvas/qt/NumberFieldEdit.h"

#include "foundation/qt/KeptKeys.h"
#include "foundation/qt/ToQString.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>
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
    : QLineEdit{parent}, digits_{digits} {
    setValidator(new FormatterValidator{formatter, this});
    setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::editingFinished, this, &NumberFieldEdit::endEditing);
}

void NumberFieldEdit::setText(std::string_view text) {
    const QString wanted = toQString(text);
    shown_ = wanted;
    if (QLineEdit::text() != wanted) {
        QLineEdit::setText(wanted);
    }
}

QSize NumberFieldEdit::sizeHint() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const int textWidth = fontMetrics().horizontalAdvance(QString(digits_, u'8'));
    const int height = QLineEdit::sizeHint().height();
    constexpr int textMargins = 8;
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option,
                                     {textWidth + textMargins, height - 2 * option.lineWidth}, this);
}

// Undo and redo are the field's as long as its text is not applied, and else the document's.
bool NumberFieldEdit::event(QEvent* event) {
    if (keepKeys(*event, {Qt::Key_Insert})) {
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && QLineEdit::text() == shown_) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void NumberFieldEdit::keyPressEvent(QKeyEvent* event) {
    if (const int steps = stepsFor(event->key()); steps != 0) {
        Q_EMIT stepped(steps);
        return;
    }
    if (event->key() == Qt::Key_Escape && QLineEdit::text() != shown_) {
        QLineEdit::setText(shown_);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void NumberFieldEdit::endEditing() {
    if (QLineEdit::text() != shown_) {
        shown_ = QLineEdit::text();
        Q_EMIT edited();
    }
}

} // namespace tessaly
