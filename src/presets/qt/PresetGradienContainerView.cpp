#include "presets/qt/PresetGradienContainerView.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/qt/KeptKeys.h"
#include "presets/PresetGallery.h"
#include "presets/qt/PresetThumbnail.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

namespace tessaly {
namespace {

constexpr int focusRingReach = 3; // points beyond the thumbnail

int stepFor(int key) {
    constexpr int row = static_cast<int>(PresetSlotGeometry::thumbnailsPerRow);
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
        return -row;
    case Qt::Key_Down:
        return row;
    default:
        return 0;
    }
}

} // namespace

PresetGradienContainerView::PresetGradienContainerView(QWidget* parent)
    : QWidget{parent}, menu_{new QMenu{tr("Contextual Menu"), this}} {
    installAccessibleItems();
    setAccessibleName(tr("Presets"));
    setFocusPolicy(Qt::StrongFocus);
}

std::size_t PresetGradienContainerView::count() const {
    return gallery_ == nullptr ? 0 : gallery_->presetGradient().size();
}

void PresetGradienContainerView::thumbnailsChanged() {
    current_ = std::min(current_, std::max<std::size_t>(count(), 1) - 1);
    update();
    if (!isVisible()) {
        return; // the stored presets come one by one before the window does
    }
    QAccessibleEvent reordered{this, QAccessible::ObjectReorder};
    QAccessible::updateAccessibility(&reordered);
    announceCurrentAccessibleItem(*this, *this); // another preset is there now
}

std::optional<std::size_t> PresetGradienContainerView::positionAt(QPointF point) const {
    return count() == 0 ? std::nullopt : gallery_->slots().positionAt({point.x(), point.y()}, count());
}

QRect PresetGradienContainerView::placeOf(std::size_t position) const {
    const Rect rect = gallery_->slots().thumbnailRect(position);
    return QRectF{rect.x, rect.y, rect.width, rect.height}.toAlignedRect();
}

void PresetGradienContainerView::paintEvent(QPaintEvent* event) {
    if (count() == 0) {
        return;
    }
    QPainter painter{this};
    const QRect area = event->rect().adjusted(0, -focusRingReach, 0, focusRingReach);
    const auto visible = PresetSlotGeometry::positionsBetween(area.top(), area.bottom() + 1, count());
    for (std::size_t position = visible.first; position < visible.last; ++position) {
        const QRect place = placeOf(position);
        drawPresetThumbnail(painter, *gallery_->presetGradient()[position], place.topLeft());
        if (hasFocus() && position == current_) {
            painter.setPen(QPen{palette().color(QPalette::Highlight), 2});
            painter.drawRoundedRect(place.adjusted(-2, -2, 2, 2), 5, 5);
        }
    }
}

void PresetGradienContainerView::mousePressEvent(QMouseEvent* event) {
    const auto position = positionAt(event->position());
    if (position && event->button() == Qt::LeftButton) {
        apply(*position);
    }
}

void PresetGradienContainerView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (current_ < count()) {
            openAccessibleItemMenu(currentAccessibleItem());
        }
    } else if (const auto position = positionAt(event->pos())) {
        popUpMenu(*position, event->globalPos());
    }
}

void PresetGradienContainerView::popUpMenu(std::size_t position, QPoint globalPosition) {
    setCurrent(position);
    menu_->clear();
    menu_->addAction(tr("Delete"), this, [this, position] { remove(position); });
    menu_->popup(globalPosition);
}

void PresetGradienContainerView::keyPressEvent(QKeyEvent* event) {
    if (current_ >= count()) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        apply(current_);
        break;
    case Qt::Key_Delete:
        if (!event->isAutoRepeat()) { // a key held too long must not cost the whole gallery
            remove(current_);
        }
        break;
    default:
        if (const int step = stepFor(event->key()); step != 0) {
            moveTo(current_ + static_cast<std::size_t>(step)); // before the first: wraps, and there is none
        } else {
            QWidget::keyPressEvent(event);
        }
    }
}

bool PresetGradienContainerView::event(QEvent* event) {
    if (keepKeys(*event, {Qt::Key_Delete, Qt::Key_Insert})) {
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        const auto position = positionAt(static_cast<QHelpEvent*>(event)->pos());
        setToolTip(position ? tr("Apply preset %1; right click for its menu").arg(*position + 1) : QString{});
    }
    return QWidget::event(event);
}

void PresetGradienContainerView::moveTo(std::size_t position) {
    if (position < count()) {
        setCurrent(position);
        Q_EMIT currentMoved(placeOf(position));
    }
}

void PresetGradienContainerView::setCurrent(std::size_t position) {
    current_ = position;
    update();
    announceCurrentAccessibleItem(*this, *this);
}

void PresetGradienContainerView::apply(std::size_t position) {
    setCurrent(position);
    DiagnosticLog::write("mouseDown");
    gallery_->applyPreset(position);
}

void PresetGradienContainerView::remove(std::size_t position) {
    if (position < count()) {
        DiagnosticLog::write("deletePresetGradientItem");
        gallery_->deletePreset(position);
    }
}

QString PresetGradienContainerView::accessibleItemName(int item) const {
    return tr("Preset %1").arg(item + 1);
}

QRect PresetGradienContainerView::accessibleItemRect(int item) const {
    return placeOf(static_cast<std::size_t>(item));
}

int PresetGradienContainerView::currentAccessibleItem() const {
    return current_ < count() ? static_cast<int>(current_) : -1;
}

void PresetGradienContainerView::pressAccessibleItem(int item) {
    apply(static_cast<std::size_t>(item));
}

void PresetGradienContainerView::openAccessibleItemMenu(int item) {
    popUpMenu(static_cast<std::size_t>(item), mapToGlobal(accessibleItemRect(item).center()));
}

} // namespace tessaly
