#include "canvas/qt/CanvasView.h"

#include "foundation/NumberText.h"
#include "foundation/qt/CloseWhenTriggered.h"
#include "foundation/qt/Flipped.h"
#include "foundation/qt/ReadableColor.h"
#include "foundation/qt/ToQString.h"
#include "model/qt/ColorBridge.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace tessaly {
namespace {

// An odd height puts the guide of the radial gradient on a row of pixels.
constexpr QSize viewSize{624, 197};

constexpr int shiftedStep = 10; // points that an arrow key moves a marker with Shift

} // namespace

CanvasView::CanvasView(QWidget* parent)
    : QWidget{parent},
      geometry_{Size{viewSize.width(), viewSize.height()}},
      picture_{geometry_},
      popupMenu_{new QMenu{this}} {
    installAccessibleItems();
    setFixedSize(viewSize);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Gradient canvas"));
    setToolTip(tr("Double click to add a stop, drag to move it"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    closeWhenTriggered(*popupMenu_);
    popupMenu_->addAction(tr("Delete Marker"), this, [this] { editor_->interaction().deleteColorMarker(); });
}

void CanvasView::updateMedium() {
    picture_.setMedium(devicePixelRatioF(), palette().color(QPalette::Window));
}

void CanvasView::paint(const CanvasScene& scene) {
    updateMedium();
    picture_.paint(scene);
    update();
    if (QAccessible::isActive()) {
        announceToAssistiveTools();
    }
}

void CanvasView::announceToAssistiveTools() {
    const int count = accessibleItemCount();
    const int current = currentAccessibleItem();
    const QString description = current < 0 ? QString{} : accessibleItemDescription(current);
    if (std::exchange(announcedCount_, count) != count) {
        QAccessibleEvent change{this, QAccessible::ObjectReorder};
        QAccessible::updateAccessibility(&change);
    }
    if (std::exchange(announcedItem_, current) != current) {
        announceCurrentAccessibleItem(*this, *this);
    } else if (current >= 0 && announcedDescription_ != description) {
        QAccessibleEvent change{this, QAccessible::DescriptionChanged};
        change.setChild(current);
        QAccessible::updateAccessibility(&change);
    }
    announcedDescription_ = description;
}

void CanvasView::paintEvent(QPaintEvent* /*event*/) {
    updateMedium(); // the window may have come to another screen, the desktop to another theme
    QPainter painter{this};
    painter.drawImage(QPointF{0, 0}, picture_.image());
    if (editor_ != nullptr && accessibleItemCount() == 0) {
        paintInvitation(painter);
    }
    if (hasFocus() && keyboardFocus_.isShown()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

// Where there is no stop.
void CanvasView::paintInvitation(QPainter& painter) const {
    painter.setPen(readableOnWindow(palette(), QPalette::PlaceholderText, textContrast));
    painter.drawText(rect(), Qt::AlignCenter, tr("Press Insert to add a stop"));
}

QRectF CanvasView::markerRect(const ColorStop& stop) const {
    const Rect frame = geometry_.markerRect(editor_->markers().gradient().orientation(), stop.position);
    return flipped(frame, height());
}

void CanvasView::mouseDown(const QMouseEvent& event, int clickCount) {
    if (event.button() == Qt::LeftButton) {
        editor_->interaction().mouseDown(flipped(event.position(), height()), clickCount);
    }
}

void CanvasView::mousePressEvent(QMouseEvent* event) {
    mouseDown(*event, 1);
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event) {
    mouseDown(*event, 2);
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        editor_->interaction().mouseDragged(flipped(event->position(), height()));
    }
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        editor_->interaction().mouseUp();
    }
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event) {
    editor_->interaction().mouseUp(); // the menu takes the mouse, and with it the end of a drag
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openMenuOfSelected();
    } else if (editor_->interaction().rightMouseDown(flipped(event->pos(), height()))) {
        popupMenu_->popup(event->globalPos());
    }
}

void CanvasView::openMenuOfSelected() {
    if (const auto stop = editor_->markers().selectedStop()) {
        popupMenu_->popup(mapToGlobal(markerRect(*stop).center().toPoint()));
    }
}

void CanvasView::keyPressEvent(QKeyEvent* event) {
    const int points = event->modifiers().testFlag(Qt::ShiftModifier) ? shiftedStep : 1;
    MarkerInteraction& interaction = editor_->interaction();
    bool handled = true;
    switch (event->key()) {
    case Qt::Key_Left:
        handled = interaction.moveSelected(-1, 0, points);
        break;
    case Qt::Key_Right:
        handled = interaction.moveSelected(1, 0, points);
        break;
    case Qt::Key_Down:
        handled = interaction.moveSelected(0, -1, points);
        break;
    case Qt::Key_Up:
        handled = interaction.moveSelected(0, 1, points);
        break;
    case Qt::Key_Insert:
        interaction.addBesideSelected();
        break;
    case Qt::Key_Delete:
        interaction.deleteColorMarker();
        break;
    default:
        handled = false;
    }
    event->setAccepted(handled);
}

// With any of these the release of the mouse may go elsewhere.
bool CanvasView::event(QEvent* event) {
    if (keyboardFocus_.isChangedBy(*event)) {
        update();
    }
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowDeactivate:
        if (editor_ != nullptr) {
            editor_->interaction().mouseUp();
        }
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool CanvasView::focusNextPrevChild(bool next) {
    // Tab goes from stop to stop; past the last one it leaves the canvas.
    return editor_->interaction().selectNeighbour(next ? 1 : -1) || QWidget::focusNextPrevChild(next);
}

int CanvasView::accessibleItemCount() const {
    return static_cast<int>(editor_->markers().gradient().stops().size());
}

QString CanvasView::accessibleItemName(int item) const {
    return tr("Stop %1").arg(item + 1);
}

QString CanvasView::accessibleItemDescription(int item) const {
    const ColorStop stop = editor_->markers().gradient().stopAt(item).value_or(ColorStop{});
    return tr("Position %1, color %2")
        .arg(toQString(fixedText(stop.position, 3)), toQColor(stop.color).name());
}

QRect CanvasView::accessibleItemRect(int item) const {
    return markerRect(editor_->markers().gradient().stopAt(item).value_or(ColorStop{})).toAlignedRect();
}

int CanvasView::currentAccessibleItem() const {
    return editor_->markers().selectedStop() ? static_cast<int>(editor_->markers().selectedColorMarkerIndex())
                                             : -1;
}

void CanvasView::pressAccessibleItem(int item) {
    editor_->interaction().select(item);
}

void CanvasView::openAccessibleItemMenu(int item) {
    editor_->interaction().select(item);
    openMenuOfSelected();
}

} // namespace tessaly
