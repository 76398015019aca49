#include "app/WindowArrangement.h"

#include "app/CopyButton.h"
#include "app/CopyOptions.h"
#include "app/MainMenu.h"
#include "app/MessageLine.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "chrome/qt/MainTabView.h"
#include "codegen/qt/WebPreviewView.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QGridLayout>
#include <QStackedWidget>

namespace tessaly {
namespace {

constexpr int margin = 16;
constexpr int spacing = 8;
constexpr int leastPreview = 480; // in width: with less the preview does not stand beside the code

// Of the grid; between them lie gaps.
constexpr int canvasRow = 0;
constexpr int controlsRow = 2;
constexpr int tabsRow = 4;
constexpr int codeRow = 5;
constexpr int rowCount = 6;
constexpr int canvasColumn = 0;
constexpr int presetsColumn = 1;
constexpr int previewColumn = 2;

// No wider than it must be: the buttons take the width of the list above them.
class Snug : public QWidget {
  public:
    QSize sizeHint() const override { return {minimumSizeHint().width(), QWidget::sizeHint().height()}; }
};

// As wide as its title, where the style would have it wider.
void narrow(QPushButton& button) {
    constexpr int padding = 12;
    button.setMinimumWidth(button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + padding);
}

QBoxLayout* rowOf(std::initializer_list<QPushButton*> buttons) {
    auto* const row = new QBoxLayout{QBoxLayout::LeftToRight};
    row->setSpacing(spacing);
    for (QPushButton* const button : buttons) {
        narrow(*button);
        row->addWidget(button);
    }
    return row;
}

} // namespace

WindowArrangement::WindowArrangement(QWidget& window, const MainWindow::Views& views, QSize room)
    : views_{views}, grid_{new QGridLayout}, side_{new Snug}, header_{new QWidget}, page_{views.stylesheet} {
    views.sourceCodeContainer->addWidget(views.stylesheet);
    views.sourceCodeContainer->addWidget(views.page);
    auto* const header = new QHBoxLayout{header_};
    header->setContentsMargins(0, 0, 0, 0);
    header->setSpacing(0);
    header->addWidget(views.tabs, 1);
    header->addSpacing(spacing);
    header->addWidget(views.copy);
    header->addWidget(views.copyOptions);
    grid_->setHorizontalSpacing(margin);
    grid_->setVerticalSpacing(0);
    for (const int gap : {canvasRow + 1, controlsRow + 1}) {
        grid_->setRowMinimumHeight(gap, margin);
    }
    grid_->setRowStretch(codeRow, 1);

    auto* const whole = new QVBoxLayout{&window};
    whole->setMenuBar(views.menu);
    whole->setContentsMargins(margin, margin, margin, 0);
    whole->setSpacing(0);
    whole->addLayout(grid_);
    whole->addWidget(views.message); // in place of the lower margin
    grid_->addWidget(views.canvas, canvasRow, canvasColumn, Qt::AlignLeft | Qt::AlignTop);
    placeTools(*header, room);
    arrange();
}

void WindowArrangement::placeTools(QHBoxLayout& header, QSize room) {
    QBoxLayout* const buttons = rowOf({views_.about, views_.homepage, views_.relatedApps});
    auto* const side = new QVBoxLayout{side_};
    side->setContentsMargins(0, 0, 0, 0);
    side->setSpacing(margin);
    side->addWidget(views_.presets);
    const int usualWidth = views_.stopControls->minimumSizeHint().width() + side_->minimumSizeHint().width();
    isTight_ = usualWidth + 3 * margin > room.width();
    if (!isTight_) {
        grid_->addWidget(views_.stopControls, controlsRow, canvasColumn, Qt::AlignLeft | Qt::AlignTop);
        side->addLayout(buttons);
        return;
    }
    grid_->addWidget(views_.stopControls, controlsRow, canvasColumn, 1, 2, Qt::AlignLeft | Qt::AlignTop);
    header.insertSpacing(1, spacing);
    header.insertLayout(2, buttons);
}

void WindowArrangement::layOut() {
    for (const QWidget* const widget :
         std::initializer_list<const QWidget*>{grid_->parentWidget(), side_, views_.presets}) {
        widget->layout()->activate();
    }
}

void WindowArrangement::showPage(QWidget* page) {
    if (page == page_) {
        return;
    }
    page_ = page;
    if (page != views_.preview) {
        views_.sourceCodeContainer->setCurrentWidget(page);
    }
    arrange();
}

void WindowArrangement::setWindowWidth(int width) {
    const int beside = 2 * margin + views_.canvas->width() + side_->minimumSizeHint().width();
    const bool isWide = width >= beside + margin + leastPreview + margin;
    if (isWide_ != isWide) {
        isWide_ = isWide;
        arrange();
    }
}

void WindowArrangement::arrange() {
    const bool isPreviewAlone = page_ == views_.preview;
    const bool isBeside = isWide_ && !isPreviewAlone;
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{side_, header_, views_.sourceCodeContainer, views_.preview}) {
        grid_->removeWidget(widget);
    }
    const int sideRows = isBeside ? rowCount : isTight_ ? 1 : controlsRow + 1;
    const int codeColumns = isBeside ? 1 : 2;
    grid_->addWidget(side_, canvasRow, presetsColumn, sideRows, 1, Qt::AlignRight);
    grid_->addWidget(header_, tabsRow, canvasColumn, 1, codeColumns);
    grid_->addWidget(views_.sourceCodeContainer, codeRow, canvasColumn, 1, codeColumns);
    if (isBeside) {
        grid_->addWidget(views_.preview, canvasRow, previewColumn, rowCount, 1);
    } else {
        grid_->addWidget(views_.preview, codeRow, canvasColumn, 1, codeColumns);
    }
    grid_->setColumnStretch(presetsColumn, isBeside ? 0 : 1);
    grid_->setColumnStretch(previewColumn, isBeside ? 1 : 0);
    views_.sourceCodeContainer->setVisible(!isPreviewAlone);
    views_.preview->setVisible(isPreviewAlone || isBeside);
}

} // namespace tessaly
