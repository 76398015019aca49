#include "app/MainWindow.h"

#include "app/CopyButton.h"
#include "app/CopyOptions.h"
#include "app/GradientIntake.h"
#include "app/MainMenu.h"
#include "app/MessageLine.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "chrome/ProductInfo.h"
#include "chrome/qt/MainTabView.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tessaly {
namespace {

constexpr int margin = 16;
constexpr int spacing = 8;
constexpr QSize startSize{980, 760};
constexpr QSize frame{16, 40}; // what a desktop's window borders and title take at most

// A copy, whatever is proposed: after a move the source would take its text away.
void acceptCopy(QDropEvent& event) {
    if (event.possibleActions().testFlag(Qt::CopyAction)) {
        event.setDropAction(Qt::CopyAction);
        event.accept();
    }
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QWidget{parent},
      views_{new MainMenu,
             new StopControlPanel,
             new CanvasView,
             new PresetPanel,
             new MainTabView{{tr("CSS 3"), tr("HTML"), tr("Web Preview")}},
             new CopyButton,
             new CopyOptions,
             new QStackedWidget,
             new SourceView{tr("CSS code")},
             new SourceView{tr("HTML code")},
             new WebPreviewView,
             new QPushButton{tr("About")},
             new QPushButton{tr("Homepage")},
             new QPushButton{tr("Related Applications")},
             new MessageLine} {
    setWindowTitle(toQString(product::name));
    setAcceptDrops(true);
    layOut();
    resize(startSize.boundedTo(room()));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (GradientIntake::canTake(*event->mimeData())) {
        acceptCopy(*event);
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    acceptCopy(*event);
    Q_EMIT dropped(*event->mimeData());
}

QSize MainWindow::room() const {
    return screen()->availableSize() - frame;
}

void MainWindow::layOut() {
    auto* const editor = new QVBoxLayout;
    editor->setSpacing(margin);
    editor->addWidget(views_.canvas);
    editor->addWidget(views_.stopControls);
    editor->addStretch();

    auto* const buttons = buttonRow();
    auto* const side = new QVBoxLayout;
    side->setSpacing(margin);
    side->addWidget(views_.presets, 0, Qt::AlignRight);
    side->addStretch();
    side->addLayout(buttons);

    auto* const top = new QHBoxLayout;
    top->setSpacing(margin);
    top->addLayout(editor);
    top->addLayout(side, 1);

    auto* const whole = new QVBoxLayout{this};
    whole->setMenuBar(views_.menu);
    whole->setContentsMargins(margin, margin, margin, 0);
    whole->setSpacing(0);
    whole->addLayout(top);
    whole->addSpacing(margin);
    whole->addLayout(codeArea(), 1);
    whole->addWidget(views_.message);                 // in place of the lower margin
    if (minimumSizeHint().width() > room().width()) { // a small screen and a large font
        buttons->setDirection(QBoxLayout::TopToBottom);
    }
}

QBoxLayout* MainWindow::buttonRow() const {
    auto* const row = new QBoxLayout{QBoxLayout::LeftToRight};
    row->setSpacing(spacing);
    row->addStretch();
    row->addWidget(views_.about);
    row->addWidget(views_.homepage);
    row->addWidget(views_.relatedApps);
    return row;
}

QLayout* MainWindow::codeArea() const {
    views_.sourceCodeContainer->addWidget(views_.stylesheet);
    views_.sourceCodeContainer->addWidget(views_.page);
    views_.sourceCodeContainer->addWidget(views_.preview);
    auto* const header = new QHBoxLayout;
    header->setSpacing(spacing);
    header->addWidget(views_.tabs, 1);
    auto* const copy = new QHBoxLayout;
    copy->setSpacing(0);
    copy->addWidget(views_.copy);
    copy->addWidget(views_.copyOptions);
    header->addLayout(copy);
    auto* const area = new QVBoxLayout;
    area->setSpacing(0);
    area->addLayout(header);
    area->addWidget(views_.sourceCodeContainer, 1);
    return area;
}

} // namespace tessaly
