#include "app/Tessaly.h"

#include "app/CopyButton.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
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
#include "model/EditStep.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QPushButton>
#include <QStackedWidget>
#include <functional>
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
      document_{{mainWindow_->views().canvas->geometry(), *mainWindow_->views().canvas,
                 mainWindow_->views().stopControls->controlSet(), *mainWindow_->views().presets},
                applicationSupport,
                [this] { updateMenu(); }},
      intake_{document_, *mainWindow_},
      htmlTextView_{mainWindow_->views().page->textView()},
      css3TextView_{mainWindow_->views().stylesheet->textView()},
      stylesheet_{css3TextView_},
      previewFiles_{htmlTextView_, css3TextView_, *mainWindow_->views().preview,
                    std::move(temporaryDirectory)} {
    lendToViews();
    answerMenu();
    document_.open(); // the code is written from what it opens with
    observe();
    writeCode();
    updateMenu();
    showSourceCodeView(0);
}

Tessaly::~Tessaly() {
    document_.close();
    mainWindow_.reset(); // its views have borrowed what goes next
}

void Tessaly::lendToViews() {
    const MainWindow::Views& views = mainWindow_->views();
    views.canvas->edit(document_.editor());
    views.stopControls->connectTo(document_.editor().controls());
    views.presets->connectTo(document_.gallery());
    connect(&views.stylesheet->textView(), &CustomTextView::userEdited, this,
            [this](const TextEdit& edit) { stylesheet_.edited(edit); });
    connect(views.copy, &QPushButton::clicked, this, &Tessaly::copyCode);
    connect(views.stopControls, &StopControlPanel::colorTyped, &intake_, &GradientIntake::takeTypedColor);
    connect(mainWindow_.get(), &MainWindow::dropped, &intake_, &GradientIntake::drop);
}

void Tessaly::answerMenu() {
    const MainWindow::Views& views = mainWindow_->views();
    MainMenu& menu = *views.menu;
    const auto answer = [&](Command command, QPushButton* button, const std::function<void()>& run) {
        menu.onCommand(command, run);
        connect(button, &QPushButton::clicked, this, run);
    };
    answer(Command::About, views.about, [this] { openDialog(about_, *mainWindow_); });
    answer(Command::Homepage, views.homepage, [] { WebAddressOpener::open(toQString(product::homepage())); });
    answer(Command::RelatedApplications, views.relatedApps,
           [this] { openDialog(relatedApps_, *mainWindow_); });
    menu.onCommand(Command::New, [this] { document_.newGradient(); });
    menu.onCommand(Command::Open, [this] { intake_.open(); });
    menu.onCommand(Command::PasteGradient, [this] { intake_.paste(); });
    menu.onCommand(Command::WriteStylesheetAnew, [this] { writeCodeAnew(); });
    menu.onCommand(Command::Quit, [this] { mainWindow_->close(); });
    menu.onCommand(Command::Undo, [this] { takeStep(&History::undo, document_.history().undoName()); });
    menu.onCommand(Command::Redo, [this] { takeStep(&History::redo, document_.history().redoName()); });
    menu.onCommand(Command::CopyStylesheet,
                   [this] { mainWindow_->views().copy->copy(toQString(css3TextView_.text())); });
    menu.onCommand(Command::AddStop, [this] { document_.editor().interaction().addBesideSelected(); });
    menu.onCommand(Command::DeleteStop, [this] { document_.editor().interaction().deleteColorMarker(); });
}

void Tessaly::takeStep(bool (History::*step)(), std::string_view name) {
    if ((document_.history().*step)() && name == editStep::boundTrack) { // the one that cannot be seen
        mainWindow_->views().message->say(step == &History::undo ? tr("The track reaches to its start again")
                                                                 : tr("The track is bound again"));
    }
}

void Tessaly::updateMenu() {
    MainMenu& menu = *mainWindow_->views().menu;
    menu.setStep(Command::Undo, document_.history().undoName());
    menu.setStep(Command::Redo, document_.history().redoName());
    menu.setEnabled(Command::DeleteStop, document_.editor().markers().selectedStop().has_value());
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
                                                  updateMenu();
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
    views.sourceCodeContainer->setCurrentWidget(page);
    views.copy->setEnabled(page != views.preview);
}

void Tessaly::copyCode() {
    const MainWindow::Views& views = mainWindow_->views();
    const bool isPage = views.sourceCodeContainer->currentWidget() == views.page;
    views.copy->copy(toQString((isPage ? htmlTextView_ : css3TextView_).text()));
}

} // namespace tessaly
