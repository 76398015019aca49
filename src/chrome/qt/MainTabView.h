#pragma once

#include "chrome/TabBarColors.h"
#include "chrome/TabBarLayout.h"
#include "foundation/qt/AccessibleItems.h"

#include <QFont>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <vector>

namespace tessaly {

/// A strip of text tabs. The tab that a click, a key or the program selects is announced by the notification
/// "SelectIndexChanged" with this object as its poster and the index, a std::int64_t, under "Index". The
/// strip knows nothing of the pages that belong to its tabs.
class MainTabView : public QWidget, public AccessibleItems {
    Q_OBJECT

  public:
    /// Starts with the first tab selected, which is not announced.
    explicit MainTabView(const QStringList& titles, QWidget* parent = nullptr);

    void addTab(const QString& title);
    const QStringList& tabs() const { return tabs_; }

    /// Lays the hit rectangles out for the strip's present width. Runs after a resize of any window; the
    /// drawing does not wait for it.
    void windowDidResize();

    std::int64_t selectIndex() const { return selectIndex_; }

    /// Announces the index always, also when it is the same or no tab has it.
    void setSelectIndex(std::int64_t index);

    /// Posts "SelectIndexChanged".
    void sendMessage(std::int64_t index) const;

    /// The tab clicked last, -1 for none; never drawn.
    std::int64_t highlightIndex() const { return highlightIndex_; }

    /// As a click on that tab: announces it if it was not the selected one.
    void pressTab(std::int64_t index);

    /// Where a tab takes clicks, in the widget's coordinates; empty when there is no such tab.
    QRectF tabRectangle(std::int64_t index) const;

    /// The tab that takes a click there, -1 for none.
    std::int64_t tabAt(QPointF position) const;

    /// Around the group of tabs as last drawn. The pointer is followed there, without effect.
    QRectF trackingArea() const { return trackingArea_; }
    void setTrackingAreas() { trackingArea_ = trackingPath_; }
    void updateTrackingAreas();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    QAccessible::Role accessibleListRole() const override { return QAccessible::PageTabList; }
    QAccessible::Role accessibleItemRole() const override { return QAccessible::PageTab; }
    int accessibleItemCount() const override { return static_cast<int>(tabs_.size()); }
    QString accessibleItemName(int item) const override;
    QRect accessibleItemRect(int item) const override;
    int currentAccessibleItem() const override;
    void pressAccessibleItem(int item) override { pressTab(item); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    Size frameSize() const { return {static_cast<double>(width()), static_cast<double>(height())}; }
    void drawTab(QPainter& painter, std::size_t index, const DrawnTabs& tabs) const;
    void drawSeparator(QPainter& painter, const TabSeparator& separator) const;
    void drawFocusFrame(QPainter& painter, const DrawnTabs& tabs) const;

    QStringList tabs_;
    std::vector<QFont> textFonts_; // one per tab, as it was measured
    TabBarLayout layout_;
    TabBarColors colors_;
    QRectF trackingPath_; // the group as last drawn
    QRectF trackingArea_;
    QTimer nextPass_; // of the event loop
    std::int64_t highlightIndex_ = -1;
    std::int64_t selectIndex_ = -1;
};

} // namespace tessaly
