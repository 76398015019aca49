#include "presets/qt/PresetDrag.h"

#include "presets/qt/PresetSheet.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <utility>

namespace tessaly {
namespace {

constexpr std::chrono::milliseconds scrollPause{20};
constexpr int scrollReach = 12;          // points in one go
constexpr double opacityInTheHand = 0.8; // what lies below can be made out

} // namespace

PresetDrag::PresetDrag(QWidget& container) : QObject{&container}, container_{container} {
    container.installEventFilter(this);
    scrolling_.setInterval(scrollPause);
    connect(&scrolling_, &QTimer::timeout, this, &PresetDrag::scroll);
}

void PresetDrag::take(PresetGallery& gallery, std::size_t held, const QMouseEvent& event) {
    cancel();
    gallery_ = &gallery;
    held_ = held;
    grip_ = event.position();
}

bool PresetDrag::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseMove:
        follow(static_cast<const QMouseEvent&>(*event));
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) {
            finish();
        }
        break;
    case QEvent::KeyPress:
        return static_cast<const QKeyEvent&>(*event).key() == Qt::Key_Escape && cancel();
    case QEvent::ContextMenu: // with any of these the release of the mouse may go elsewhere
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowDeactivate:
        cancel();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PresetDrag::follow(const QMouseEvent& event) {
    point_ = event.position();
    hand_ = event.globalPosition();
    const bool isFarEnough = (point_ - grip_).manhattanLength() >= QApplication::startDragDistance();
    if (gallery_ != nullptr && isFarEnough && !isUnderWay_) {
        isUnderWay_ = true;
        scrolling_.start();
        container_.setCursor(Qt::ClosedHandCursor);
    }
    if (isUnderWay_) {
        container_.update();
    }
}

// At the edge of what is to be seen the thumbnails move under the hand.
void PresetDrag::scroll() {
    const QPointF point = container_.mapFromGlobal(hand_);
    if (std::exchange(point_, point) != point) {
        container_.update();
    }
    const QRect seen = container_.visibleRegion().boundingRect();
    const int y = std::clamp(qRound(point_.y()), seen.top() - scrollReach, seen.bottom() + scrollReach);
    Q_EMIT toBeSeen({seen.left(), y, 1, 1});
}

void PresetDrag::finish() {
    const auto target = landing();
    PresetGallery* const gallery = gallery_;
    cancel();
    if (target) {
        gallery->movePreset(held_, target->position);
    }
}

bool PresetDrag::cancel() {
    if (std::exchange(isUnderWay_, false)) {
        scrolling_.stop();
        container_.unsetCursor();
        container_.update();
    }
    return std::exchange(gallery_, nullptr) != nullptr;
}

std::optional<PresetSlotGeometry::Landing> PresetDrag::landing() const {
    if (!isUnderWay_) {
        return std::nullopt;
    }
    return gallery_->slots().landingOf(held_, {point_.x(), point_.y()}, gallery_->presetGradient().size());
}

void PresetDrag::paint(QPainter& painter, const PresetSheet& sheet, const QColor& markColor) const {
    if (!isUnderWay_) {
        return;
    }
    const Rect place = gallery_->slots().thumbnailRect(held_);
    painter.setOpacity(opacityInTheHand);
    sheet.paintThumbnail(painter, gallery_->presetGradient()[held_],
                         QPointF{place.x, place.y} + point_ - grip_);
    painter.setOpacity(1.0);
    if (const auto target = landing()) {
        const Rect& mark = target->mark;
        painter.setPen(Qt::NoPen);
        painter.setBrush(markColor);
        painter.drawRoundedRect(QRectF{mark.x, mark.y, mark.width, mark.height}, mark.width / 2,
                                mark.width / 2);
    }
}

} // namespace tessaly
