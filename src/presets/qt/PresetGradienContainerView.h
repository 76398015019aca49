#pragma once

#include "foundation/qt/AccessibleItems.h"
#include "foundation/qt/KeyboardFocus.h"
#include "presets/qt/PresetSheet.h"

#include <QWidget>
#include <cstddef>
#include <optional>

class QMenu;

namespace tessaly {

class PresetDrag;
class PresetGallery;

/// What the thumbnails lie in: paints those that can be seen, hands mouse and keys to the one they are meant
/// for, lets the keyboard go from one to the next, and both move one to another place.
class PresetGradienContainerView : public QWidget, public AccessibleItems {
    Q_OBJECT

  public:
    explicit PresetGradienContainerView(QWidget* parent = nullptr);

    /// The gallery shown here; it must outlive the view.
    void setGallery(PresetGallery* gallery) { gallery_ = gallery; }

    /// The number of thumbnails, or their places, changed.
    void thumbnailsChanged();

    /// Makes a thumbnail the current one, if there is one of that position, and tells with `toBeSeen`.
    void moveTo(std::size_t position);

    QAccessible::Role accessibleListRole() const override { return QAccessible::List; }
    QAccessible::Role accessibleItemRole() const override { return QAccessible::Button; }
    int accessibleItemCount() const override { return static_cast<int>(count()); }
    QString accessibleItemName(int item) const override { return tr("Preset %1").arg(item + 1); }
    QRect accessibleItemRect(int item) const override { return placeOf(static_cast<std::size_t>(item)); }
    int currentAccessibleItem() const override {
        return current_ < count() ? static_cast<int>(current_) : -1;
    }
    void pressAccessibleItem(int item) override { apply(static_cast<std::size_t>(item)); }
    bool accessibleItemsHaveMenu() const override { return true; }
    void openAccessibleItemMenu(int item) override;
    bool accessibleItemsCanBeDeleted() const override { return true; }
    void deleteAccessibleItem(int item) override { remove(static_cast<std::size_t>(item)); }

  Q_SIGNALS:
    /// A place that is to come into view, in this widget's coordinates: the current thumbnail's, or where one
    /// is being dragged to.
    void toBeSeen(const QRect& place);

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
    std::size_t current_ = 0;     ///< has the keyboard when the view has it; may lie past the end
    KeyboardFocus keyboardFocus_; ///< before the children, whose making is told by events
    QMenu* menu_;
    PresetDrag* drag_;
    PresetSheet sheet_;
};

} // namespace tessaly
