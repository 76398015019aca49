#include "app/Tessaly.h"

#include "app/CopyButton.h"
#include "app/CopyOptions.h"
#include "app/MainWindow.h"
#include "canvas/CanvasNotification.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "chrome/TabNotification.h"
#include "chrome/qt/MainTabView.h"
#include "codegen/PageText.h"
#include "codegen/qt/WebPreviewView.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QPushButton>
#include <utility>

namespace tessaly {
Tessaly::Tessaly(std::filesystem::path temporaryDirectory, const std::filesystem::path& applicationSupport)
    : mainWindow_{std::make_unique<MainWindow>()},
      document_{{mainWindow_->views().canvas->geometry(), *mainWindow_->views().canvas,
                 mainWindow_->views().stopControls->controlSet(), *mainWindow_->views().presets},
                applicationSupport,
                [this] { menuAnswers_.update(); }},
      intake_{document_, *mainWindow_},
      htmlTextView_{mainWindow_->views().page->textView()},
      css3TextView_{mainWindow_->views().stylesheet->textView()},
      stylesheet_{css3TextView_},
      previewFiles_{css3TextView_, *mainWindow_->views().preview, std::move(temporaryDirectory)},
      copy_{document_, *mainWindow_},
      stylesheetFile_{mainWindow_->views().stylesheet->textView(), *mainWindow_},
      export_{document_, *mainWindow_},
      menuAnswers_{{document_, *mainWindow_, intake_, copy_, stylesheetFile_, export_},
                   [this] { writeCodeAnew(); }} {
    lendToViews();
    document_.open(); // the code is written from what it opens with
    observe();
    writeCode();
    menuAnswers_.update();
    showSourceCodeView(0);
}

Tessaly::~Tessaly() {
    mainWindow_->hide(); // which ends what is being typed
    stylesheetFile_.finish();
    document_.close();
    needToUpdateWebCode_.reset();
    mainWindow_.reset(); // its views have borrowed what goes next
}

void Tessaly::lendToViews() {
    const MainWindow::Views& views = mainWindow_->views();
    views.canvas->edit(document_.editor());
    views.stopControls->connectTo(document_.editor().controls());
    views.presets->connectTo(document_.gallery());
    connect(&views.stylesheet->textView(), &CustomTextView::userEdited, this,
            [this](const TextEdit& edit) { stylesheet_.edited(edit); });
    connect(views.copy, &QPushButton::clicked, &copy_, &CodeCopy::copyShownText);
    connect(&views.copyOptions->wholeText(), &QAction::triggered, &copy_, &CodeCopy::copyShownText);
    connect(views.stopControls, &StopControlPanel::colorTyped, &intake_, &GradientIntake::takeTypedColor);
    connect(mainWindow_.get(), &MainWindow::dropped, &intake_, &GradientIntake::drop);
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
    needToUpdateWebCode_ = center.addObserver(canvasNotification::needToUpdateWebCode, &document_.editor(),
                                              [this](const Notification& /*notification*/) {
                                                  updateCode();
                                                  if (!document_.history().isActing()) { // else at its end
                                                      menuAnswers_.update();
                                                  }
                                              });
}

void Tessaly::writeCode() {
    htmlTextView_.replaceCharacters({}, pageText);
    stylesheet_.insertCSS3Code(document_.record().gradient, document_.record().colorFormatType);
    previewFiles_.createHTMLIndexFile();
}

void Tessaly::updateCode() {
    const bool changed = stylesheet_.update(document_.record().gradient, document_.record().colorFormatType);
    if (changed || !previewFiles_.isAsWritten()) {
        previewFiles_.writeCSSFile();
    }
}

void Tessaly::writeCodeAnew() {
    stylesheet_.writeAnew(document_.record().gradient, document_.record().colorFormatType);
    previewFiles_.writeCSSFile();
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
    mainWindow_->showPage(page);
    views.copy->setEnabled(page != views.preview);
    views.copyOptions->wholeText().setEnabled(page != views.preview);
}

} // namespace tessaly
