#include "app/Tessaly.h"

#include "app/CopyButton.h"
#include "app/CopyOptions.h"
#include "app/Homepage.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "canvas/CanvasNotification.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/FieldEdit.h"
#include "canvas/qt/StopControlPanel.h"
#include "chrome/TabNotification.h"
#include "chrome/qt/About.h"
#include "chrome/qt/MainTabView.h"
#include "chrome/qt/RelatedApps.h"
#include "codegen/PageText.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/SourceView.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <array>
#include <functional>
#include <utility>

namespace tessaly {
namespace {

struct ToolCommand {
    Command command;
    StopTool tool;
};

constexpr std::array<ToolCommand, allStopTools.size()> toolCommands{
    {{Command::AddStopInBetween, StopTool::AddInBetween},
     {Command::DuplicateStop, StopTool::Duplicate},
     {Command::Reverse, StopTool::Reverse},
     {Command::DistributeEvenly, StopTool::Distribute},
     {Command::SortStops, StopTool::Sort}}};

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
                    std::move(temporaryDirectory)},
      copy_{document_, *mainWindow_},
      stylesheetFile_{mainWindow_->views().stylesheet->textView(), *mainWindow_},
      export_{document_, *mainWindow_} {
    lendToViews();
    answerMenu();
    document_.open(); // the code is written from what it opens with
    observe();
    writeCode();
    updateMenu();
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
    CopyOptions& forms = *views.copyOptions;
    connect(views.copy, &QPushButton::clicked, &copy_, &CodeCopy::copyShownText);
    connect(&forms.wholeText(), &QAction::triggered, &copy_, &CodeCopy::copyShownText);
    connect(&forms.standardDeclaration(), &QAction::triggered, &copy_, &CodeCopy::copyStandardDeclaration);
    connect(&forms.standardValue(), &QAction::triggered, &copy_, &CodeCopy::copyStandardValue);
    connect(views.stopControls, &StopControlPanel::colorTyped, &intake_, &GradientIntake::takeTypedColor);
    connect(mainWindow_.get(), &MainWindow::dropped, &intake_, &GradientIntake::drop);
}

void Tessaly::answerMenu() {
    const MainWindow::Views& views = mainWindow_->views();
    const auto on = [&](Command command, const std::function<void()>& run) {
        views.menu->onCommand(command, [this, run] { runCommand(run); });
    };
    const auto onBoth = [&](Command command, QPushButton* button, const std::function<void()>& run) {
        on(command, run);
        connect(button, &QPushButton::clicked, this, run);
    };
    onBoth(Command::About, views.about, [this] { openDialog(about_, *mainWindow_); });
    onBoth(Command::Homepage, views.homepage, openHomepage);
    onBoth(Command::RelatedApplications, views.relatedApps,
           [this] { openDialog(relatedApps_, *mainWindow_); });
    views.menu->onCommand(Command::Quit, [this] { mainWindow_->close(); });
    on(Command::New, [this] { document_.newGradient(); });
    on(Command::Open, [this] { intake_.open(); });
    on(Command::Undo, [this] { takeStep(&History::undo); });
    on(Command::Redo, [this] { takeStep(&History::redo); });
    on(Command::SaveStylesheet, [this] { stylesheetFile_.save(); });
    on(Command::SaveStylesheetAs, [this] { stylesheetFile_.saveAs(); });
    QAction& onEveryChange = views.menu->actionOf(Command::SaveOnEveryChange);
    views.menu->onCommand(Command::SaveOnEveryChange, [this, &onEveryChange] {
        stylesheetFile_.saveOnEveryChange(onEveryChange.isChecked());
    });
    connect(&stylesheetFile_, &StylesheetFile::savesOnEveryChange, &onEveryChange, &QAction::setChecked);
    on(Command::ExportPicture, [this] { export_.exportPicture(); });
    on(Command::ExportPresets, [this] { export_.exportPresets(); });
    on(Command::CopyStylesheet, [this] { copy_.copyStylesheet(); });
    on(Command::CopyStandardDeclaration, [this] { copy_.copyStandardDeclaration(); });
    on(Command::CopyStandardValue, [this] { copy_.copyStandardValue(); });
    on(Command::PasteGradient, [this] { intake_.paste(); });
    on(Command::AddStop, [this] { document_.editor().interaction().addBesideSelected(); });
    on(Command::DeleteStop, [this] { document_.editor().interaction().deleteColorMarker(); });
    views.canvas->markerMenu().addSeparator();
    for (const ToolCommand& entry : toolCommands) {
        on(entry.command, [this, tool = entry.tool] { document_.use(tool); });
        views.canvas->markerMenu().addAction(&views.menu->actionOf(entry.command));
    }
    connect(&views.canvas->markerMenu(), &QMenu::aboutToShow, this, &Tessaly::updateMenu);
    on(Command::WriteStylesheetAnew, [this] { writeCodeAnew(); });
}

// Nothing happens beneath an open menu, nor while a mouse button is down: what these act on must not change
// under the hand. What is being typed is applied first.
void Tessaly::runCommand(const std::function<void()>& run) {
    if (QApplication::activePopupWidget() != nullptr || QApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    mainWindow_->views().message->say({});
    if (auto* const field = qobject_cast<FieldEdit*>(QApplication::focusWidget())) {
        field->endEditing();
    }
    run();
}

void Tessaly::takeStep(bool (History::*step)()) {
    const std::int64_t before = document_.editor().interaction().lowerBound();
    (document_.history().*step)();
    const std::int64_t after = document_.editor().interaction().lowerBound();
    if (before != after) { // which cannot be seen
        mainWindow_->views().message->say(after < before
                                              ? tr("Markers can be moved along the whole track again")
                                              : tr("Markers keep to half of the track again"));
    }
}

void Tessaly::updateMenu() {
    MainMenu& menu = *mainWindow_->views().menu;
    menu.setStep(Command::Undo, document_.history().undoName());
    menu.setStep(Command::Redo, document_.history().redoName());
    menu.setEnabled(Command::DeleteStop, document_.editor().markers().selectedStop().has_value());
    const bool hasStops = !document_.record().gradient.stops().empty();
    menu.setEnabled(Command::CopyStandardDeclaration, hasStops);
    menu.setEnabled(Command::CopyStandardValue, hasStops);
    mainWindow_->views().copyOptions->standardDeclaration().setEnabled(hasStops);
    mainWindow_->views().copyOptions->standardValue().setEnabled(hasStops);
    menu.setEnabled(Command::ExportPresets, !document_.gallery().presetGradient().empty());
    for (const ToolCommand& entry : toolCommands) {
        menu.setEnabled(entry.command, document_.canUse(entry.tool));
    }
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
                                                      updateMenu();
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
