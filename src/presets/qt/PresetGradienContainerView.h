#pragma once

#include "foundation/qt/AccessibleItems.h"

#include <QWidget>
#include <cstddef>
#include <optional>

class QMenu;

namespace tessaly {

class PresetGallery;

/// What the thumbnails lie in: paints those that can be seen, hands mouse and keys to the one they are meant
/// for, and lets the keyboard go from one to the next.
class PresetGradienContainerView : public QWidget, public AccessibleItems {
    Q_OBJECT

  public:
    explicit PresetGradienContainerView(QWidget* parent = nullptr);

    /// The gallery shown here; it must outlive the view.
    void setGallery(PresetGallery* gallery) { gallery_ = gallery; }

    /// The number of thumbnails, or their places, changed.
    void thumbnailsChanged();

    /// Makes a thumbnail the current one, if there is one of that position, and tells with `currentMoved`.
    void moveTo(std::size_t position);

    QAccessible::Role accessibleListRole() const override { return QAccessible::List; }
    QAccessible::Role accessibleItemRole() const override { return QAccessible::Button; }
    int accessibleItemCount() const override { return static_cast<int>(count()); }
    QString accessibleItemName(int item) const override;
    QRect accessibleItemRect(int item) const override;
    int currentAccessibleItem() const override;
    void pressAccessibleItem(int item) override;
    bool accessibleItemsHaveMenu() const override { return true; }
    void openAccessibleItemMenu(int item) override;

  Q_SIGNALS:
    /// The current thumbnail is now the one that is there, in this widget's coordinates.
    void currentMoved(const QRect& place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

  private:
    std::size_t count() const;
    std::optional<std::size_t> positionAt(QPointF point) const;
    QRect placeOf(std::size_t position) const;
    void setCurrent(std::size_t position);
    void apply(std::size_t position);
    void remove(std::size_t position);
    void popUpMenu(std::size_t position, QPoint globalPosition);

    PresetGallery* gallery_ = nullptr;
    std::size_t current_ = 0; ///< has the keyboard when the view has it; may lie past the end
    QMenu* menu_;
};

} // namespace tessaly
