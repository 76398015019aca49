#include "app/MessageLine.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace tessaly {
namespace {

bool isNextAction(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::Wheel;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key < Qt::Key_Shift || key > Qt::Key_ScrollLock; // those in between only modify others
}

} // namespace

MessageLine::MessageLine(QWidget* parent) : QLabel{parent} {
    setAccessibleName(tr("Message"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    constexpr int room = 8; // above and below the text together
    setFixedHeight(fontMetrics().height() + room);
}

void MessageLine::say(const QString& message) {
    if (message_.isEmpty() != message.isEmpty()) {
        if (message.isEmpty()) {
            qApp->removeEventFilter(this);
        } else {
            qApp->installEventFilter(this);
        }
    }
    message_ = message;
    setToolTip(message.toHtmlEscaped()); // which may carry words of a file
    setAccessibleDescription(message);
    showElided();
    if (!message.isEmpty()) {
        QAccessibleEvent event{this, QAccessible::Alert};
        QAccessible::updateAccessibility(&event);
    }
}

void MessageLine::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    showElided();
}

bool MessageLine::eventFilter(QObject* watched, QEvent* event) {
    // To widgets the same event may come several times.
    if (isNextAction(*event) && QGuiApplication::allWindows().contains(watched)) {
        say({});
    }
    return false;
}

void MessageLine::showElided() {
    setText(fontMetrics().elidedText(message_, Qt::ElideRight, width()));
}

} // namespace tessaly
