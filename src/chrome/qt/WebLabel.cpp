#include "chrome/qt/WebLabel.h"

#include "chrome/LinkAddress.h"
#include "chrome/qt/WebAddressOpener.h"
#include "chrome/qt/WebLabelAccessible.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/qt/ToQColor.h"
#include "foundation/qt/ToQString.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace tessaly {
namespace {

// Pure blue cannot be read on a dark desktop, which gets a light one.
QColor blueOn(const QColor& background) {
    constexpr QColor onDark{0x7a, 0xb8, 0xff};
    return isDark(background) ? onDark : QColor{Qt::blue};
}

} // namespace

WebLabel::WebLabel(const QString& address, QWidget* parent) : QLabel{address, parent} {
    installWebLabelAccessible();
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setMargin(2); // the focus frame stays clear of the text
    updateColor();
}

void WebLabel::openAddress() {
    const LinkAddress link = LinkAddress::ofLabel(text().toStdString());
    WebAddressOpener::open(toQString(link.address));
    DiagnosticLog::write(link.logLine);
}

void WebLabel::enterEvent(QEnterEvent* event) {
    setCursor(Qt::PointingHandCursor);
    setUnderlined(true);
    QLabel::enterEvent(event);
}

void WebLabel::leaveEvent(QEvent* event) {
    setCursor(Qt::ArrowCursor);
    setUnderlined(false);
    QLabel::leaveEvent(event);
}

void WebLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        openAddress();
    }
}

void WebLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Enter:
    case Qt::Key_Return:
        openAddress();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void WebLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QStylePainter painter{this};
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(backgroundRole());
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

void WebLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        updateColor();
    }
    QLabel::changeEvent(event);
}

void WebLabel::setUnderlined(bool underlined) {
    QFont underlinedFont = font();
    underlinedFont.setUnderline(underlined);
    setFont(underlinedFont);
}

void WebLabel::updateColor() {
    QPalette blue = palette();
    const QColor color = blueOn(blue.color(backgroundRole()));
    if (blue.color(foregroundRole()) != color) {
        blue.setColor(foregroundRole(), color);
        setPalette(blue);
    }
}

} // namespace tessaly
