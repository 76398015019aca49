#include "canvas/qt/FieldEdit.h"

#include "foundation/qt/KeptKeys.h"
#include "foundation/qt/ToQString.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace tessaly {

FieldEdit::FieldEdit(int digits, QWidget* parent) : QLineEdit{parent}, digits_{digits} {
    connect(this, &QLineEdit::editingFinished, this, &FieldEdit::endEditing);
    connect(this, &QLineEdit::textChanged, this, &FieldEdit::takePutIn);
}

void FieldEdit::setText(std::string_view text) {
    const QString wanted = toQString(text);
    shown_ = wanted;
    if (QLineEdit::text() != wanted || isUndoAvailable()) {
        QLineEdit::setText(wanted); // and no undo goes back behind what was applied
    }
}

QSize FieldEdit::sizeHint() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const int textWidth = fontMetrics().horizontalAdvance(QString(digits_, u'8'));
    const int height = QLineEdit::sizeHint().height();
    constexpr int textMargins = 8;
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option,
                                     {textWidth + textMargins, height - 2 * option.lineWidth}, this);
}

// Undo and redo are the field's as long as its text is not applied, and else the document's.
bool FieldEdit::event(QEvent* event) {
    if (keepKeys(*event, {Qt::Key_Insert}) || leaveKeys(*event)) {
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && QLineEdit::text() == shown_ &&
        isHistoryKey(static_cast<const QKeyEvent&>(*event))) {
        event->ignore();
        return true;
    }
    return QLineEdit::event(event);
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && QLineEdit::text() != shown_) {
        QLineEdit::setText(shown_);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

// Assistive tools have no Enter to end an edit with, and pass by the validator.
void FieldEdit::takePutIn() {
    if (isModified()) {
        return; // is being typed
    }
    if (hasAcceptableInput()) {
        endEditing();
    } else {
        QLineEdit::setText(shown_);
    }
}

void FieldEdit::endEditing() {
    if (QLineEdit::text() != shown_) {
        shown_ = QLineEdit::text();
        Q_EMIT edited();
    }
}

} // namespace tessaly
