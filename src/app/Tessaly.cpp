#include "app/Tessaly.h"

#include "app/CopyButton.h"
#include "app/MainWindow.h"
#include "canvas/CanvasNotification.h"
#include "canvas/qt/CanvasView.h"
#include "chrome/ProductInfo.h"
#include "chrome/TabNotification.h"
#include "chrome/qt/About.h"
#include "chrome/qt/MainTabView.h"
#include "chrome/qt/RelatedApps.h"
#include "chrome/qt/WebAddressOpener.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"
#include "sourceview/qt/Css3SourceView.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/HtmlSourceView.h"

#include <QPushButton>
#include <QStackedWidget>
#include <utility>

namespace tessaly {

Tessaly::Tessaly(MainWindow& mainWindow, std::filesystem::path temporaryDirectory)
    : mainWindow_{mainWindow},
      htmlTextView_{*mainWindow.htmlSourceView().textView()},
      css3TextView_{*mainWindow.css3SourceView().textView()},
      webCode_{htmlTextView_, css3TextView_, mainWindow.webPreviewView(), std::move(temporaryDirectory)} {
    connect(&mainWindow.copyButton(), &QPushButton::clicked, this, &Tessaly::copyCode);
    connect(&mainWindow.aboutButton(), &QPushButton::clicked, this, &Tessaly::showAbout);
    connect(&mainWindow.homepageButton(), &QPushButton::clicked, this, &Tessaly::showHomepage);
    connect(&mainWindow.relatedAppsButton(), &QPushButton::clicked, this, &Tessaly::showRelatedApps);
    connect(mainWindow.css3SourceView().textView(), &CustomTextView::userEdited, this,
            [this](std::size_t position, std::size_t removed, std::size_t added) {
                webCode_.stylesheetEdited(position, removed, added);
            });
}

void Tessaly::awakeFromNib() {
    NotificationCenter& center = NotificationCenter::defaultCenter();
    // From the main window's own strip only: that of the related applications posts the same name.
    selectIndexChanged_ = center.addObserver(
        tabNotification::selectIndexChanged, &mainWindow_.mainTabView(),
        [this](const Notification& notification) { selectWebIndexDidChangeNotification(notification); });
    needToUpdateWebCode_ =
        center.addObserver(canvasNotification::needToUpdateWebCode, &mainWindow_.canvasView().editor(),
                           [this](const Notification& notification) {
                               webCode_.updateBackgroundColorDataUpdatedNotification(notification);
                           });
    webCode_.insertHTML5Code();
    webCode_.insertCSS3Code();
    webCode_.createHTMLIndexFile();
    showSourceCodeView(0);
}

void Tessaly::selectWebIndexDidChangeNotification(const Notification& notification) {
    if (const auto index = tabNotification::indexOf(notification)) {
        showSourceCodeView(*index);
    }
}

void Tessaly::showSourceCodeView(std::int64_t index) {
    QWidget* page = &mainWindow_.webPreviewView();
    if (index == 0) {
        page = &mainWindow_.css3SourceView();
    } else if (index == 1) {
        page = &mainWindow_.htmlSourceView();
    }
    mainWindow_.sourceCodeContainerView().setCurrentWidget(page);
    mainWindow_.copyButton().setEnabled(page != &mainWindow_.webPreviewView());
}

void Tessaly::copyCode() {
    const QWidget* const page = mainWindow_.sourceCodeContainerView().currentWidget();
    const CodeTextAdapter& shown = page == &mainWindow_.htmlSourceView() ? htmlTextView_ : css3TextView_;
    mainWindow_.copyButton().copy(toQString(shown.text()));
}

void Tessaly::showAbout() {
    if (about_ == nullptr) {
        about_ = new About{&mainWindow_};
    }
    about_->open();
}

void Tessaly::showHomepage() {
    WebAddressOpener::open(toQString(product::homepage()));
}

void Tessaly::showRelatedApps() {
    if (relatedApps_ == nullptr) {
        relatedApps_ = new RelatedApps{&mainWindow_};
    }
    relatedApps_->open();
}

} // namespace tessaly
