#include "canvas/qt/ColorPickerImageView.h"

#include "canvas/CanvasNotification.h"
#include "foundation/NotificationCenter.h"
#include "foundation/qt/KeptKeys.h"
#include "model/qt/ColorBridge.h"

#include <QColorDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <algorithm>

namespace tessaly {
namespace {

constexpr double cornerRadius = 4;

// Beside the window if the screen has room there, else in its lower right corner, where it hides neither the
// canvas nor the controls. Some systems place windows themselves.
void placeBeside(const QWidget& window, QWidget& panel) {
    constexpr QSize frame{16, 40}; // what a desktop's borders and title take at most
    constexpr int gap = 8;
    const QRect room = window.screen()->availableGeometry();
    const QRect taken = window.frameGeometry();
    const QSize size = panel.sizeHint() + frame;
    const int leftOf = taken.left() - gap - size.width();
    QPoint place{taken.right() + gap, taken.top()};
    if (place.x() + size.width() > room.right() && leftOf >= room.left()) {
        place.setX(leftOf);
    } else if (place.x() + size.width() > room.right()) {
        place = room.bottomRight();
    }
    panel.move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - size.width())),
               std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - size.height())));
}

QRectF insetBounds(const QWidget& view, double inset) {
    return QRectF{view.rect()}.adjusted(inset, inset, -inset, -inset);
}

} // namespace

ColorPickerImageView::ColorPickerImageView(QWidget* parent) : QAbstractButton{parent} {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this, &ColorPickerImageView::openColorPanel);
}

QSize ColorPickerImageView::sizeHint() const {
    return {64, 24};
}

void ColorPickerImageView::setBackgroundColor(const Color& color) {
    backgroundColor_ = color.calibratedRGB() ? color : fromQColor(palette().color(QPalette::Light));
    setAccessibleDescription(toQColor(backgroundColor_).name());
    update();
    showInColorPanel();
    NotificationCenter::defaultCenter().post(
        {canvasNotification::colorChanged, static_cast<const ColorWell*>(this), {}});
}

void ColorPickerImageView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    // In the accent colour while the well has the keyboard.
    const QColor frame = hasFocus() ? palette().color(QPalette::Highlight) : QColor{Qt::gray};
    painter.setPen(QPen{frame, hasFocus() ? 2.0 : 1.0});
    painter.drawRoundedRect(insetBounds(*this, 1), cornerRadius, cornerRadius);

    const QRectF swatch = insetBounds(*this, 2);
    QPainterPath outline;
    outline.addRoundedRect(swatch, cornerRadius, cornerRadius);
    painter.fillPath(outline, toQColor(backgroundColor_));
    painter.setPen(QPen{Qt::white, 1});
    painter.drawPath(outline);
    if (isColorNotSet_) {
        painter.drawLine(swatch.topLeft(), swatch.bottomRight());
        painter.drawLine(swatch.topRight(), swatch.bottomLeft());
    }
}

void ColorPickerImageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void ColorPickerImageView::openColorPanel() {
    if (colorPanel_ == nullptr) {
        colorPanel_ = new QColorDialog{window()};
        // The toolkit's own panel: it looks and reports alike on every desktop.
        colorPanel_->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
        colorPanel_->setWindowTitle(tr("Stop color"));
        colorPanel_->setModal(false);
        colorPanel_->installEventFilter(this);
        for (QLineEdit* const field : colorPanel_->findChildren<QLineEdit*>()) {
            field->installEventFilter(this);
        }
        connect(colorPanel_, &QColorDialog::currentColorChanged, this,
                [this](const QColor& color) { setBackgroundColor(fromQColor(color)); });
    }
    Q_EMIT pickingBegun();
    if (!colorPanel_->isVisible()) {
        placeBeside(*window(), *colorPanel_);
    }
    colorPanel_->show();
    showInColorPanel();
    colorPanel_->raise();
    colorPanel_->activateWindow();
}

bool ColorPickerImageView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) {
        return QAbstractButton::eventFilter(watched, event);
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (watched == colorPanel_ && event->type() == QEvent::KeyPress && key.key() == Qt::Key_Escape) {
        Q_EMIT pickingGivenUp(); // and then the panel closes
    }
    // All that is typed in the panel is picked at once: what takes it back is the document's.
    const bool isStep = isHistoryKey(key);
    if (isStep && watched != colorPanel_) {
        event->ignore();
    }
    return isStep && watched != colorPanel_;
}

void ColorPickerImageView::showInColorPanel() {
    const QColor color = toQColor(backgroundColor_);
    if (colorPanel_ != nullptr && colorPanel_->isVisible() && colorPanel_->currentColor() != color) {
        const QSignalBlocker notPickedByTheUser{colorPanel_};
        colorPanel_->setCurrentColor(color);
    }
}

} // namespace tessaly
