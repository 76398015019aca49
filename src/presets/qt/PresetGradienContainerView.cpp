#include "presets/qt/PresetGradienContainerView.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/qt/CloseWhenTriggered.h"
#include "foundation/qt/KeptKeys.h"
#include "foundation/qt/ReadableColor.h"
#include "presets/PresetGallery.h"
#include "presets/qt/PresetDrag.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <map>

namespace tessaly {
namespace {

int stepFor(int key) {
    constexpr int row = static_cast<int>(PresetSlotGeometry::thumbnailsPerRow);
    static const std::map<int, int> steps{
        {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -row}, {Qt::Key_Down, row}};
    const auto step = steps.find(key);
    return step == steps.end() ? 0 : step->second;
}

} // namespace

PresetGradienContainerView::PresetGradienContainerView(QWidget* parent)
    : QWidget{parent}, menu_{new QMenu{tr("Contextual Menu"), this}}, drag_{new PresetDrag{*this}} {
    installAccessibleItems();
    setAccessibleName(tr("Presets"));
    setFocusPolicy(Qt::StrongFocus);
    closeWhenTriggered(*menu_);
    connect(drag_, &PresetDrag::toBeSeen, this, &PresetGradienContainerView::toBeSeen);
}

std::size_t PresetGradienContainerView::count() const {
    return gallery_ == nullptr ? 0 : gallery_->presetGradient().size();
}

void PresetGradienContainerView::thumbnailsChanged() {
    current_ = std::min(current_, std::max<std::size_t>(count(), 1) - 1);
    update();
    drag_->cancel();
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
    const QColor marking = readableOnWindow(palette(), QPalette::Highlight, lineContrast);
    sheet_.paint(painter, *gallery_, event->rect(), *drag_);
    if (hasFocus() && keyboardFocus_.isShown()) {
        constexpr double reach = 1.0; // of the middle of the line, beyond the thumbnail
        const QRectF room = QRectF{rect()}.adjusted(reach, reach, -reach, -reach);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen{marking, 2 * reach});
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF{placeOf(current_)}.adjusted(-reach, -reach, reach, reach) & room, 5,
                                5);
    }
    drag_->paint(painter, sheet_, marking);
}

void PresetGradienContainerView::mousePressEvent(QMouseEvent* event) {
    const auto position = positionAt(event->position());
    if (!position || event->button() != Qt::LeftButton) {
        return;
    }
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        setCurrent(*position);
        drag_->take(*gallery_, *position, *event);
    } else {
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
    const int step = stepFor(event->key());
    if (std::abs(step) == 1 && event->modifiers().testFlag(Qt::ControlModifier)) {
        gallery_->movePresetBeside(current_, step);
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
        if (step != 0) {
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
    if (keyboardFocus_.isChangedBy(*event)) {
        update();
    }
    if (event->type() == QEvent::ToolTip) {
        const auto position = positionAt(static_cast<QHelpEvent*>(event)->pos());
        const QString text = tr("Apply preset %1; right click for its menu, drag with Ctrl to move it");
        setToolTip(position ? text.arg(*position + 1) : QString{});
    }
    return QWidget::event(event);
}

void PresetGradienContainerView::moveTo(std::size_t position) {
    if (position < count()) {
        setCurrent(position);
        Q_EMIT toBeSeen(placeOf(position));
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

void PresetGradienContainerView::openAccessibleItemMenu(int item) {
    popUpMenu(static_cast<std::size_t>(item), mapToGlobal(accessibleItemRect(item).center()));
}

} // namespace tessaly
