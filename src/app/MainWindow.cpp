#include "app/MainWindow.h"

#include "app/CopyButton.h"
#include "app/CopyOptions.h"
#include "app/GradientIntake.h"
#include "app/MainMenu.h"
#include "app/MessageLine.h"
#include "app/WindowArrangement.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "chrome/ProductInfo.h"
#include "chrome/qt/MainTabView.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QDragEnterEvent>
#include <QLayout>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>

namespace tessaly {
namespace {

constexpr int startHeight = 760;
constexpr QSize frame{16, 40}; // what a desktop's window borders and title take at most

// A copy, whatever is proposed: after a move the source would take its text away.
void acceptCopy(QDropEvent& event) {
    if (event.possibleActions().testFlag(Qt::CopyAction)) {
        event.setDropAction(Qt::CopyAction);
        event.accept();
    }
}

} // namespace

MainWindow::~MainWindow() = default;

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
             new SourceView{CodeLanguage::Css, tr("CSS code")},
             new SourceView{CodeLanguage::Html, tr("HTML code")},
             new WebPreviewView,
             new QPushButton{tr("About")},
             new QPushButton{tr("Homepage")},
             new QPushButton{tr("Related Applications")},
             new MessageLine} {
    setWindowTitle(toQString(product::name));
    setAcceptDrops(true);
    evenHeights();
    const QSize room = screen()->availableSize() - frame;
    arrangement_ = std::make_unique<WindowArrangement>(*this, views_, room);
    resize(QSize{minimumSizeHint().width(), startHeight}.boundedTo(room));
    arrangement_->layOut(); // the presets ask how high their list is
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

// Buttons stand beside fields.
void MainWindow::evenHeights() {
    const int height = views_.stopControls->rowHeight();
    for (QWidget* const button : std::initializer_list<QWidget*>{
             views_.copy, views_.copyOptions, views_.about, views_.homepage, views_.relatedApps}) {
        button->setFixedHeight(height);
    }
}

void MainWindow::showPage(QWidget* page) {
    arrangement_->showPage(page);
}

const QWidget* MainWindow::shownPage() const {
    return arrangement_->shownPage();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrangement_->setWindowWidth(width());
}

} // namespace tessaly
