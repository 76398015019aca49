#pragma once

#include "canvas/CanvasSurface.h"
#include "canvas/GradientEditor.h"
#include "canvas/qt/CanvasPicture.h"
#include "foundation/qt/AccessibleItems.h"
#include "foundation/qt/KeyboardFocus.h"

#include <QWidget>

class QMenu;

namespace tessaly {

/// The gradient editor on the screen: shows the offscreen picture and hands mouse and keys on. Its size never
/// changes, since the geometry is taken once.
class CanvasView : public QWidget, public CanvasSurface, public AccessibleItems {
    Q_OBJECT

  public:
    explicit CanvasView(QWidget* parent = nullptr);

    /// Hands mouse and keys to an editor, which outlives the view. Before that it may be painted on, not
    /// used.
    void edit(GradientEditor& editor) { editor_ = &editor; }

    const CanvasGeometry& geometry() const { return geometry_; }

    /// Of the selected marker.
    QMenu& markerMenu() { return *popupMenu_; }

    void paint(const CanvasScene& scene) override;

    QAccessible::Role accessibleListRole() const override { return QAccessible::List; }
    QAccessible::Role accessibleItemRole() const override { return QAccessible::ListItem; }
    int accessibleItemCount() const override;
    QString accessibleItemName(int item) const override;
    QString accessibleItemDescription(int item) const override;
    QRect accessibleItemRect(int item) const override;
    int currentAccessibleItem() const override;
    void pressAccessibleItem(int item) override;
    bool accessibleItemsHaveMenu() const override { return true; }
    void openAccessibleItemMenu(int item) override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    QRectF markerRect(const ColorStop& stop) const;
    void mouseDown(const QMouseEvent& event, int clickCount);
    void openMenuOfSelected();
    void updateMedium();
    void announceToAssistiveTools();
    void paintInvitation(QPainter& painter) const;

    KeyboardFocus keyboardFocus_; ///< before the children, whose making is told by events
    CanvasGeometry geometry_;
    GradientEditor* editor_ = nullptr;
    CanvasPicture picture_;
    QMenu* popupMenu_;

    // What assistive tools were last told of the stops.
    int announcedCount_ = 0;
    int announcedItem_ = -1;
    QString announcedDescription_;
};

} // namespace tessaly
