#pragma once

#include "presets/PresetGallery.h"

#include <QObject>
#include <QPointF>
#include <QTimer>
#include <cstddef>
#include <optional>

class QColor;
class QMouseEvent;
class QPainter;
class QRect;
class QWidget;

namespace tessaly {

class PresetSheet;

/// The thumbnail that the mouse carries to another place, if there is one: follows the mouse, is painted in
/// the hand, and asks for scrolling at the edge of what is to be seen.
class PresetDrag : public QObject {
    Q_OBJECT

  public:
    /// In the container of the thumbnails, which owns it and whose events it sees first.
    explicit PresetDrag(QWidget& container);

    /// Takes hold of a thumbnail of a gallery, which outlives this. Where the mouse lets it go the preset is
    /// moved to; with Escape, or when the mouse is needed elsewhere, it stays where it was.
    void take(PresetGallery& gallery, std::size_t held, const QMouseEvent& event);

    /// Lets it go where it was: the list has changed. False: there was none.
    bool cancel();

    /// Whether that thumbnail is in the hand, which has moved far enough for it to be meant.
    bool carries(std::size_t position) const { return isUnderWay_ && held_ == position; }

    /// Paints the thumbnail in the hand, and a mark where it would land.
    void paint(QPainter& painter, const PresetSheet& sheet, const QColor& markColor) const;

  Q_SIGNALS:
    /// A place of the container that is to come into view.
    void toBeSeen(const QRect& place);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow(const QMouseEvent& event);
    void finish();
    std::optional<PresetSlotGeometry::Landing> landing() const;
    void scroll();

    QWidget& container_;
    PresetGallery* gallery_ = nullptr; ///< null: nothing is held
    std::size_t held_ = 0;
    QPointF grip_;  ///< where it was taken
    QPointF point_; ///< where it is
    QPointF hand_;  ///< the same on the desktop
    bool isUnderWay_ = false;
    QTimer scrolling_; ///< runs while it is
};

} // namespace tessaly
