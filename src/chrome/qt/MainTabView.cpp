#include "chrome/qt/MainTabView.h"

#include "chrome/TabNotification.h"
#include "foundation/NotificationCenter.h"
#include "foundation/qt/Flipped.h"
#include "foundation/qt/ToQColor.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>

namespace tessaly {

namespace {

std::vector<Size> sizesOf(const QStringList& titles, const QFontMetricsF& metrics) {
    std::vector<Size> sizes;
    std::ranges::transform(titles, std::back_inserter(sizes), [&](const QString& title) {
        return Size{metrics.horizontalAdvance(title), metrics.height()};
    });
    return sizes;
}

} // namespace

MainTabView::MainTabView(const QStringList& titles, QWidget* parent)
    : QWidget{parent},
      tabs_{titles},
      titleFont_{font()},
      layout_{sizesOf(titles, QFontMetricsF{titleFont_})} {
    installAccessibleItems();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // the pointer is followed, deliberately without effect
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent);
    windowDidResize();
    nextPass_.setSingleShot(true);
    connect(&nextPass_, &QTimer::timeout, this, &MainTabView::windowDidResize);
    QCoreApplication::instance()->installEventFilter(this); // until this object ends
}

void MainTabView::windowDidResize() {
    layout_.layOutHitRectangles(width());
}

void MainTabView::setSelectIndex(std::int64_t index) {
    selectIndex_ = index;
    update();
    announceCurrentAccessibleItem(*this, *this);
    NotificationCenter::defaultCenter().post(tabNotification::makeSelectIndexChanged(index, this));
}

void MainTabView::pressTab(std::int64_t index) {
    update();
    if (index != selectIndex_) {
        setSelectIndex(index);
    }
}

QSize MainTabView::sizeHint() const {
    const Size size = layout_.preferredSize();
    return {static_cast<int>(std::ceil(size.width)), static_cast<int>(std::ceil(size.height))};
}

bool MainTabView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow()) {
        // The event comes before the window has given its children their new places.
        nextPass_.start();
    }
    return QWidget::eventFilter(watched, event);
}

bool MainTabView::event(QEvent* event) {
    if (keyboardFocus_.isChangedBy(*event)) {
        update();
    }
    return QWidget::event(event);
}

void MainTabView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    QLinearGradient grey{0, static_cast<double>(height()), 0, 0};
    grey.setColorAt(0, toQColor(colors_.gradientBottom));
    grey.setColorAt(1, toQColor(colors_.gradientTop));
    painter.fillRect(rect(), grey);
    const DrawnTabs drawn = layout_.drawn(frameSize(), selectIndex_);
    for (std::size_t i = 0; i < drawn.titles.size(); ++i) {
        drawTab(painter, i, drawn);
    }
    if (hasFocus() && keyboardFocus_.isShown()) {
        drawFocusFrame(painter, drawn);
    }
}

void MainTabView::drawTab(QPainter& painter, std::size_t index, const DrawnTabs& tabs) const {
    if (tabs.selectedBox && static_cast<std::int64_t>(index) == selectIndex_) {
        painter.setPen(QPen{toQColor(colors_.borderSelectColor), 1});
        painter.setBrush(toQColor(colors_.selectColor));
        painter.drawRect(flipped(*tabs.selectedBox, height()));
    }
    const Point origin = tabs.titles[index];
    const Size size = layout_.textSizes()[index];
    painter.setFont(titleFont_);
    painter.setPen(toQColor(colors_.title));
    painter.drawText(flipped(Rect{origin.x, origin.y, size.width, size.height}, height()),
                     Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip,
                     tabs_[static_cast<qsizetype>(index)]);
    if (index < tabs.separators.size()) {
        drawSeparator(painter, tabs.separators[index]);
    }
}

void MainTabView::drawSeparator(QPainter& painter, const TabSeparator& separator) const {
    const auto stroke = [&](const Line& line, const RGBAComponents& color) {
        painter.setPen(QPen{toQColor(color), 1, Qt::SolidLine, Qt::FlatCap});
        painter.drawLine(flipped(line.from, height()), flipped(line.to, height()));
    };
    stroke(separator.dark, colors_.separatorDark);
    stroke(separator.light, colors_.separatorLight);
}

void MainTabView::drawFocusFrame(QPainter& painter, const DrawnTabs& tabs) const {
    constexpr double outset = 1.0; // clear of the separators
    const QRectF frame = flipped(tabs.selectedBox.value_or(tabs.trackingArea), height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{toQColor(colors_.title), 1.5});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.adjusted(-outset, -outset, outset, outset), 3, 3);
}

void MainTabView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (const auto index = layout_.tabAt(flipped(event->position(), height()))) {
        pressTab(*index);
    }
}

void MainTabView::keyPressEvent(QKeyEvent* event) {
    const std::int64_t row = tabs_.size();
    const std::map<int, std::int64_t> steps{
        {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Home, -row}, {Qt::Key_End, row}};
    const auto step = steps.find(event->key());
    if (step == steps.end()) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (const auto index = layout_.neighbour(selectIndex_, step->second); index != selectIndex_) {
        setSelectIndex(index);
    }
}

QString MainTabView::accessibleItemName(int item) const {
    return tabs_[item];
}

QRect MainTabView::accessibleItemRect(int item) const {
    return flipped(layout_.hitRectangles()[static_cast<std::size_t>(item)], height()).toAlignedRect();
}

int MainTabView::currentAccessibleItem() const {
    const bool known = selectIndex_ >= 0 && selectIndex_ < tabs_.size();
    return known ? static_cast<int>(selectIndex_) : -1;
}

} // namespace tessaly
