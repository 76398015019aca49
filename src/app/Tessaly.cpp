#include "app/Tessaly.h"

#include "app/CopyButton.h"
#include "app/MainWindow.h"
#include "canvas/CanvasNotification.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "chrome/ProductInfo.h"
#include "chrome/TabNotification.h"
#include "chrome/qt/About.h"
#include "chrome/qt/MainTabView.h"
#include "chrome/qt/RelatedApps.h"
#include "chrome/qt/WebAddressOpener.h"
#include "codegen/PageText.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QPushButton>
#include <QStackedWidget>
#include <utility>

namespace tessaly {
namespace {

// Made when first shown, then kept.
template <typename Dialog>
void openDialog(Dialog*& dialog, MainWindow& window) {
    if (dialog == nullptr) {
        dialog = new Dialog{&window};
    }
    dialog->open();
}

} // namespace

Tessaly::Tessaly(std::filesystem::path temporaryDirectory, const std::filesystem::path& applicationSupport)
    : mainWindow_{std::make_unique<MainWindow>()},
      editor_{record_, mainWindow_->views().canvas->geometry(), *mainWindow_->views().canvas,
              mainWindow_->views().stopControls->controlSet()},
      htmlTextView_{mainWindow_->views().page->textView()},
      css3TextView_{mainWindow_->views().stylesheet->textView()},
      stylesheet_{css3TextView_},
      previewFiles_{htmlTextView_, css3TextView_, *mainWindow_->views().preview,
                    std::move(temporaryDirectory)},
      gallery_{record_.gradient,
               *mainWindow_->views().presets,
               {[this] { editor_.gradientReplaced(); }, [this] { store_.insertData(); }}},
      store_{gallery_, applicationSupport} {
    lendToViews();
    // The stored presets come before the gradient that is to be edited, and the code is written from that.
    store_.openDB();
    editor_.awakeFromNib();
    observe();
    writeCode();
    showSourceCodeView(0);
}

Tessaly::~Tessaly() {
    store_.closeDB();
    mainWindow_.reset(); // its views have borrowed what goes next
}

void Tessaly::lendToViews() {
    const MainWindow::Views& views = mainWindow_->views();
    views.canvas->edit(editor_);
    views.stopControls->connectTo(editor_.controls());
    views.presets->connectTo(gallery_);
    connect(&views.stylesheet->textView(), &CustomTextView::userEdited, this,
            [this](const TextEdit& edit) { stylesheet_.edited(edit); });
    connect(views.copy, &QPushButton::clicked, this, &Tessaly::copyCode);
    connect(views.about, &QPushButton::clicked, this, [this] { openDialog(about_, *mainWindow_); });
    connect(views.homepage, &QPushButton::clicked, this,
            [] { WebAddressOpener::open(toQString(product::homepage())); });
    connect(views.relatedApps, &QPushButton::clicked, this,
            [this] { openDialog(relatedApps_, *mainWindow_); });
}

void Tessaly::observe() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    // From the main window's own strip only: that of the related applications posts the same name.
    selectIndexChanged_ =
        center.addObserver(tabNotification::selectIndexChanged, mainWindow_->views().tabs,
                           [this](const Notification& notification) {
                               if (const auto index = tabNotification::indexOf(notification)) {
                                   showSourceCodeView(*index);
                               }
                           });
    needToUpdateWebCode_ = center.addObserver(canvasNotification::needToUpdateWebCode, &editor_,
                                              [this](const Notification& /*notification*/) { updateCode(); });
}

void Tessaly::writeCode() {
    htmlTextView_.replaceCharacters({}, pageText);
    stylesheet_.insertCSS3Code(record_.gradient, record_.colorFormatType);
    previewFiles_.createHTMLIndexFile();
}

void Tessaly::updateCode() {
    const bool changed = stylesheet_.update(record_.gradient, record_.colorFormatType);
    if (changed || !previewFiles_.isAsWritten()) {
        previewFiles_.writeCSSFile();
    }
}

// The stylesheet (0), the page (1) or the preview (any other index).
void Tessaly::showSourceCodeView(std::int64_t index) {
    const MainWindow::Views& views = mainWindow_->views();
    QWidget* page = views.preview;
    if (index == 0) {
        page = views.stylesheet;
    } else if (index == 1) {
        page = views.page;
    }
    views.sourceCodeContainer->setCurrentWidget(page);
    views.copy->setEnabled(page != views.preview);
}

void Tessaly::copyCode() {
    const MainWindow::Views& views = mainWindow_->views();
    const bool isPage = views.sourceCodeContainer->currentWidget() == views.page;
    views.copy->copy(toQString((isPage ? htmlTextView_ : css3TextView_).text()));
}

} // namespace tessaly
