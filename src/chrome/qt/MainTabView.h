#pragma once

#include "chrome/TabBarColors.h"
#include "chrome/TabBarLayout.h"
#include "foundation/qt/AccessibleItems.h"
#include "foundation/qt/KeyboardFocus.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <cstdint>

namespace tessaly {

/// A strip of text tabs. The tab that a click, a key or the program selects is announced by the notification
/// "SelectIndexChanged" with this object as its poster and the index, a std::int64_t, under "Index". The
/// strip knows nothing of the pages that belong to its tabs.
class MainTabView : public QWidget, public AccessibleItems {
    Q_OBJECT

  public:
    /// One title at least. Starts with the first tab selected, which is not announced.
    explicit MainTabView(const QStringList& titles, QWidget* parent = nullptr);

    /// Announces the index always, also when it is the same or no tab has it.
    void setSelectIndex(std::int64_t index);

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
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    /// Lays the hit rectangles out for the strip's present width. Runs after a resize of any window; the
    /// drawing does not wait for it.
    void windowDidResize();

    /// As a click on that tab: announces it if it was not the selected one.
    void pressTab(std::int64_t index);

    Size frameSize() const { return {static_cast<double>(width()), static_cast<double>(height())}; }
    void drawTab(QPainter& painter, std::size_t index, const DrawnTabs& tabs) const;
    void drawSeparator(QPainter& painter, const TabSeparator& separator) const;
    void drawFocusFrame(QPainter& painter, const DrawnTabs& tabs) const;

    KeyboardFocus keyboardFocus_;
    QStringList tabs_;
    QFont titleFont_; // as the titles were measured
    TabBarLayout layout_;
    TabBarColors colors_;
    QTimer nextPass_; // of the event loop
    std::int64_t selectIndex_ = 0;
};

} // namespace tessaly
