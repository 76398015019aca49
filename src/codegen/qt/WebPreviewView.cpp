#include "codegen/qt/WebPreviewView.h"

#include "codegen/qt/PreviewPage.h"
#include "codegen/qt/PreviewRequestFilter.h"
#include "foundation/DiagnosticLog.h"

#include <QEvent>
#include <QLoggingCategory>
#include <QVBoxLayout>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <unistd.h>

namespace tessaly {

void WebPreviewView::prepareProcess() {
    // The engine reports its whole configuration otherwise, in the middle of our log.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
    if (::geteuid() == 0 && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX")) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        DiagnosticLog::write(
            "Running as root: the browser engine's sandbox is off, it cannot start otherwise");
    }
}

WebPreviewView::WebPreviewView(QWidget* parent) : QWidget{parent} {
    auto* const layout = new QVBoxLayout{this};
    layout->setContentsMargins(0, 0, 0, 0);
    setAccessibleName(tr("Web preview"));
    constexpr int pause = 200; // milliseconds
    makeAgain_.setInterval(pause);
    makeAgain_.setSingleShot(true);
    connect(&makeAgain_, &QTimer::timeout, this, &WebPreviewView::makeView);
}

WebPreviewView::~WebPreviewView() = default;

void WebPreviewView::loadFile(const std::filesystem::path& page) {
    url_ = QUrl::fromLocalFile(QString::fromStdString(page.native()));
    if (view_) {
        loadPage();
    }
}

void WebPreviewView::loadPage() {
    loading_ = true;
    filter_->setPage(url_);
    page_->show(url_);
}

void WebPreviewView::reload() {
    if (!view_ || !url_.isValid()) {
        return;
    }
    if (loading_) {
        reloadAgain_ = true;
    } else {
        loading_ = true;
        page_->triggerAction(QWebEnginePage::Reload);
    }
}

void WebPreviewView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!view_) {
        startEngine();
    }
}

void WebPreviewView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && page_) {
        takeBackground();
    }
}

void WebPreviewView::startEngine() {
    filter_ = std::make_unique<PreviewRequestFilter>();
    profile_ = std::make_unique<QWebEngineProfile>(); // off the record: nothing is kept
    profile_->setUrlRequestInterceptor(filter_.get());
    makeView();
}

void WebPreviewView::makeView() {
    view_.reset();
    delete container_;
    page_ = std::make_unique<PreviewPage>(*profile_);
    takeBackground();
    connect(page_.get(), &QWebEnginePage::loadFinished, this, &WebPreviewView::loadFinished);
    connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, &WebPreviewView::renderProcessEnded);
    view_ = std::make_unique<QWebEngineView>();
    view_->setAttribute(Qt::WA_QuitOnClose, false);
    view_->setPage(page_.get());
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    loading_ = false;
    reloadAgain_ = false;
    if (url_.isValid()) {
        loadPage();
    }
    embedView();
}

void WebPreviewView::embedView() {
    // As a child widget the view would make the toolkit build the main window anew, visibly, and draw all of
    // it through the graphics card from then on. As a native window of its own it concerns nobody else.
    view_->resize(size());
    view_->winId();
    container_ = QWidget::createWindowContainer(view_->windowHandle());
    layout()->addWidget(container_);
}

void WebPreviewView::renderProcessEnded() {
    DiagnosticLog::write("The preview's render process ended; making the preview anew");
    // Not at once: a page that ends its process each time must not keep the machine busy. The old view may go
    // on showing nothing even when its page loads again, so it is replaced.
    makeAgain_.start();
}

void WebPreviewView::takeBackground() {
    // What is seen until the first page has loaded, and behind a page that sets no background of its own.
    page_->setBackgroundColor(palette().color(QPalette::Base));
}

void WebPreviewView::loadFinished() {
    loading_ = false;
    if (reloadAgain_) {
        reloadAgain_ = false;
        reload();
    }
}

} // namespace tessaly
