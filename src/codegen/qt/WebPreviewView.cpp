#include "codegen/qt/WebPreviewView.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/qt/AfterFirstPaint.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <utility>

namespace tessaly {

using Clock = std::chrono::steady_clock;

WebPreviewView::WebPreviewView(QString module, QWidget* parent)
    : QWidget{parent}, modulePath_{std::move(module)}, layers_{new QGridLayout{this}}, cover_{new QLabel} {
    setAccessibleName(tr("Web preview"));
    cover_->setAutoFillBackground(true);
    cover_->setBackgroundRole(QPalette::Base);
    cover_->setForegroundRole(QPalette::Text);
    cover_->setAlignment(Qt::AlignCenter);
    cover_->setWordWrap(true);
    cover_->setTextFormat(Qt::PlainText);
    afterFirstPaint(*cover_, [this] { loadModule(); }); // the switched tab reaches the screen first
    layers_->setContentsMargins(0, 0, 0, 0);
    layers_->addWidget(cover_, 0, 0);
    startAgain_.setSingleShot(true);
    connect(&startAgain_, &QTimer::timeout, this, &WebPreviewView::proceed);
}

WebPreviewView::~WebPreviewView() = default;

void WebPreviewView::loadFile(const std::filesystem::path& page) {
    url_ = QUrl::fromLocalFile(QString::fromStdString(page.native()));
    orders_.pageChanged();
    changed();
}

void WebPreviewView::reload() {
    if (url_.isValid()) {
        orders_.stylesheetChanged();
        changed();
    }
}

void WebPreviewView::changed() {
    if (restarts_.hasGivenUp() && !engineRuns_ && !startAgain_.isActive()) {
        startAgain_.start(restarts_.untilWorthATry(Clock::now()));
    }
    proceed();
}

void WebPreviewView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (engineRuns_ && orders_.isAnyWanted()) {
        cover(); // what the engine painted last is no longer true
    }
    proceed();
}

void WebPreviewView::loadModule() {
    const auto [module, failure] = loadPreviewModule(modulePath_);
    module_ = module;
    if (module_ == nullptr) {
        DiagnosticLog::write("No web preview: " + failure.toStdString());
        cover(tr("There is no preview: %1.").arg(failure));
    }
    proceed();
}

void WebPreviewView::startEngine() {
    engine_.reset();
    engine_ = module_->makeEngine(*this,
                                  {[this](int order, bool sound) { orderFinished(order, sound); },
                                   [this](int order) { painted(order); }, [this] { engineEnded(); }},
                                  DiagnosticLog::write);
    layers_->addWidget(&engine_->widget(), 0, 0);
    cover();
    engineRuns_ = true;
    restarts_.started(Clock::now());
}

void WebPreviewView::proceed() {
    if (module_ == nullptr || !isVisible() || startAgain_.isActive() || !orders_.isAnyWanted()) {
        return;
    }
    if (!engineRuns_) {
        startEngine();
    }
    const auto order = orders_.take();
    if (!order) {
        return;
    }
    if (order->kind == PreviewOrders::Kind::LoadPage) {
        engine_->load(url_, order->number);
    } else {
        engine_->renewStylesheet(order->number);
    }
}

void WebPreviewView::orderFinished(int order, bool sound) {
    if (!orders_.finished(order, sound)) {
        return;
    }
    if (!sound && !orders_.isAnyWanted()) {
        cover(tr("The preview cannot read its files. The next change of the gradient tries again."));
    }
    proceed();
}

void WebPreviewView::painted(int order) {
    if (orders_.isTrue(order)) {
        cover_->hide();
    }
}

void WebPreviewView::engineEnded() {
    if (!engineRuns_) {
        return; // told twice
    }
    DiagnosticLog::write("The preview's render process ended; making the preview anew");
    engineRuns_ = false; // but not gone: it is what calls
    orders_.engineEnded();
    if (const auto pause = restarts_.ended(Clock::now())) {
        cover();
        startAgain_.start(*pause);
    } else {
        orders_.forget();
        DiagnosticLog::write("It ended too often; the next change tries again");
        cover(tr("The browser engine cannot run. The next change of the gradient tries again."));
    }
}

void WebPreviewView::cover(const QString& why) {
    orders_.outdate();
    cover_->setText(why);
    cover_->raise();
    cover_->show();
    if (!why.isEmpty()) {
        QAccessibleEvent alert{cover_, QAccessible::Alert};
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace tessaly
