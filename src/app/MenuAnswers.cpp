#include "app/MenuAnswers.h"

#include "app/CodeCopy.h"
#include "app/CopyOptions.h"
#include "app/GradientExport.h"
#include "app/GradientIntake.h"
#include "app/Homepage.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/StylesheetFile.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/FieldEdit.h"
#include "chrome/qt/About.h"
#include "chrome/qt/RelatedApps.h"
#include "document/Document.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <array>

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

MenuAnswers::MenuAnswers(const Borrowed& with, const std::function<void()>& writeCodeAnew) : with_{with} {
    answerFile();
    answerEdit();
    answerGradient();
    on(Command::WriteStylesheetAnew, writeCodeAnew);
    answerHelp();
}

void MenuAnswers::on(Command command, const std::function<void()>& run) {
    with_.window.views().menu->onCommand(command, [this, run] { runCommand(run); });
}

void MenuAnswers::answerFile() {
    on(Command::New, [this] { with_.document.newGradient(); });
    on(Command::Open, [this] { with_.intake.open(); });
    on(Command::SaveStylesheet, [this] { with_.stylesheetFile.save(); });
    on(Command::SaveStylesheetAs, [this] { with_.stylesheetFile.saveAs(); });
    MainMenu& menu = *with_.window.views().menu;
    QAction& onEveryChange = menu.actionOf(Command::SaveOnEveryChange);
    menu.onCommand(Command::SaveOnEveryChange, [this, &onEveryChange] {
        with_.stylesheetFile.saveOnEveryChange(onEveryChange.isChecked());
    });
    connect(&with_.stylesheetFile, &StylesheetFile::savesOnEveryChange, &onEveryChange, &QAction::setChecked);
    on(Command::ExportPicture, [this] { with_.exports.exportPicture(); });
    on(Command::ExportPresets, [this] { with_.exports.exportPresets(); });
    menu.onCommand(Command::Quit, [this] { with_.window.close(); });
}

void MenuAnswers::answerEdit() {
    on(Command::Undo, [this] { takeStep(&History::undo); });
    on(Command::Redo, [this] { takeStep(&History::redo); });
    on(Command::CopyStylesheet, [this] { with_.copy.copyStylesheet(); });
    on(Command::CopyStandardDeclaration, [this] { with_.copy.copyStandardDeclaration(); });
    on(Command::CopyStandardValue, [this] { with_.copy.copyStandardValue(); });
    on(Command::PasteGradient, [this] { with_.intake.paste(); });
    CopyOptions& forms = *with_.window.views().copyOptions;
    standFor(Command::CopyStandardDeclaration, forms.standardDeclaration());
    standFor(Command::CopyStandardValue, forms.standardValue());
}

// An action of another menu, with a title of its own.
void MenuAnswers::standFor(Command command, QAction& other) {
    QAction& own = with_.window.views().menu->actionOf(command);
    connect(&other, &QAction::triggered, &own, &QAction::trigger);
    connect(&own, &QAction::enabledChanged, &other, &QAction::setEnabled);
}

void MenuAnswers::answerGradient() {
    on(Command::AddStop, [this] { with_.document.editor().interaction().addBesideSelected(); });
    on(Command::DeleteStop, [this] { with_.document.editor().interaction().deleteColorMarker(); });
    QMenu& markerMenu = with_.window.views().canvas->markerMenu();
    markerMenu.addSeparator();
    for (const ToolCommand& entry : toolCommands) {
        // Added before it is answered, so that the menu is closed by then.
        markerMenu.addAction(&with_.window.views().menu->actionOf(entry.command));
        on(entry.command, [this, tool = entry.tool] { with_.document.use(tool); });
    }
    connect(&markerMenu, &QMenu::aboutToShow, this, &MenuAnswers::update);
}

void MenuAnswers::answerHelp() {
    const MainWindow::Views& views = with_.window.views();
    const auto onBoth = [&](Command command, QPushButton* button, const std::function<void()>& run) {
        on(command, run);
        connect(button, &QPushButton::clicked, this, run);
    };
    onBoth(Command::About, views.about, [this] { openDialog(about_, with_.window); });
    onBoth(Command::Homepage, views.homepage, openHomepage);
    onBoth(Command::RelatedApplications, views.relatedApps,
           [this] { openDialog(relatedApps_, with_.window); });
}

// Nothing happens beneath an open menu, nor while a mouse button is down: what these act on must not change
// under the hand. What is being typed is applied first.
void MenuAnswers::runCommand(const std::function<void()>& run) {
    if (QApplication::activePopupWidget() != nullptr || QApplication::mouseButtons() != Qt::NoButton) {
        return;
    }
    with_.window.views().message->say({});
    if (auto* const field = qobject_cast<FieldEdit*>(QApplication::focusWidget())) {
        field->endEditing();
    }
    run();
}

void MenuAnswers::takeStep(bool (History::*step)()) {
    const std::int64_t before = with_.document.editor().interaction().lowerBound();
    (with_.document.history().*step)();
    const std::int64_t after = with_.document.editor().interaction().lowerBound();
    if (before != after) { // which cannot be seen
        with_.window.views().message->say(after < before
                                              ? tr("Markers can be moved along the whole track again")
                                              : tr("Markers keep to half of the track again"));
    }
}

void MenuAnswers::update() {
    MainMenu& menu = *with_.window.views().menu;
    menu.setStep(Command::Undo, with_.document.history().undoName());
    menu.setStep(Command::Redo, with_.document.history().redoName());
    menu.setEnabled(Command::DeleteStop, with_.document.editor().markers().selectedStop().has_value());
    const bool hasStops = !with_.document.record().gradient.stops().empty();
    menu.setEnabled(Command::CopyStandardDeclaration, hasStops);
    menu.setEnabled(Command::CopyStandardValue, hasStops);
    menu.setEnabled(Command::ExportPresets, !with_.document.gallery().presetGradient().empty());
    for (const ToolCommand& entry : toolCommands) {
        menu.setEnabled(entry.command, with_.document.canUse(entry.tool));
    }
}

} // namespace tessaly
