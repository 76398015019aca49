#include "app/MainMenu.h"

#include "foundation/qt/CloseWhenTriggered.h"
#include "foundation/qt/ToQString.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <algorithm>
#include <functional>
#include <utility>

namespace tessaly {
namespace {

/// Where it stands, and how it is reached.
struct Item {
    Command command;
    const char* menu; ///< opened by the first item that names it
    const char* title;
    QKeyCombination key = QKeyCombination::fromCombined(0);
    bool separated = false; ///< from the item above it
    /// In the colour dialog too, where a key is not taken by the field that has the keyboard.
    Qt::ShortcutContext context = Qt::WindowShortcut;
};

constexpr const char* file = QT_TRANSLATE_NOOP("tessaly::MainMenu", "&File");
constexpr const char* edit = QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Edit");
constexpr const char* gradient = QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Gradient");
constexpr const char* help = QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Help");

constexpr std::array<Item, commandCount> items{{
    {Command::New, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&New"), Qt::CTRL | Qt::Key_N},
    {Command::Open, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Open..."), Qt::CTRL | Qt::Key_O},
    {Command::SaveStylesheet, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Save Stylesheet"),
     Qt::CTRL | Qt::Key_S, true},
    {Command::SaveStylesheetAs, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "Save Stylesheet &As..."),
     Qt::CTRL | Qt::SHIFT | Qt::Key_S},
    {Command::SaveOnEveryChange, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "Save on Every &Change")},
    {Command::ExportPicture, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Export Picture..."),
     Qt::CTRL | Qt::Key_E, true},
    {Command::ExportPresets, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "Export &Presets...")},
    {Command::Quit, file, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Quit"), Qt::CTRL | Qt::Key_Q, true,
     Qt::ApplicationShortcut},
    {Command::Undo, edit, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Undo"), Qt::CTRL | Qt::Key_Z, false,
     Qt::ApplicationShortcut},
    {Command::Redo, edit, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Redo"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
     false, Qt::ApplicationShortcut},
    {Command::CopyStylesheet, edit, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Copy Stylesheet"),
     QKeyCombination::fromCombined(0), true},
    {Command::CopyStandardDeclaration, edit,
     QT_TRANSLATE_NOOP("tessaly::MainMenu", "Copy Standard &Declaration"), Qt::CTRL | Qt::SHIFT | Qt::Key_C},
    {Command::CopyStandardValue, edit, QT_TRANSLATE_NOOP("tessaly::MainMenu", "Copy Standard &Value")},
    {Command::PasteGradient, edit, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Paste Gradient"),
     Qt::CTRL | Qt::Key_V},
    {Command::AddStop, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Add Stop"), Qt::Key_Insert},
    {Command::AddStopInBetween, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "Add Stop in &Between"),
     Qt::CTRL | Qt::Key_I},
    {Command::DuplicateStop, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "D&uplicate Stop"),
     Qt::CTRL | Qt::Key_D},
    {Command::DeleteStop, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Delete Stop"), Qt::Key_Delete},
    {Command::Reverse, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Reverse"), Qt::CTRL | Qt::Key_R,
     true},
    {Command::DistributeEvenly, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "D&istribute Evenly")},
    {Command::SortStops, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Sort Stops")},
    {Command::WriteStylesheetAnew, gradient, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Write Stylesheet Anew"),
     QKeyCombination::fromCombined(0), true},
    {Command::About, help, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&About")},
    {Command::Homepage, help, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Homepage")},
    {Command::RelatedApplications, help, QT_TRANSLATE_NOOP("tessaly::MainMenu", "&Related Applications")},
}};

static_assert(std::ranges::is_sorted(items, std::less_equal{}, &Item::command) &&
                  items.front().command == Command{},
              "each at its place");

const Item& itemOf(Command command) {
    return items[static_cast<std::size_t>(command)];
}

} // namespace

MainMenu::MainMenu(QWidget* parent) : QMenuBar{parent} {
    QMenu* menu = nullptr;
    const char* opened = nullptr;
    for (const Item& item : items) {
        if (menu == nullptr || opened != item.menu) {
            menu = addMenu(tr(item.menu));
            closeWhenTriggered(*menu);
            opened = item.menu;
        } else if (item.separated) {
            menu->addSeparator();
        }
        auto* const action = menu->addAction(tr(item.title));
        action->setShortcut(QKeySequence{item.key});
        action->setShortcutContext(item.context);
        actions_[static_cast<std::size_t>(item.command)] = action;
    }
    actionOf(Command::SaveOnEveryChange).setCheckable(true);
}

void MainMenu::onCommand(Command command, std::function<void()> run) {
    connect(&actionOf(command), &QAction::triggered, this, std::move(run));
}

void MainMenu::setEnabled(Command command, bool enabled) {
    actionOf(command).setEnabled(enabled);
}

void MainMenu::setStep(Command command, std::string_view step) {
    const QString title = tr(itemOf(command).title);
    actionOf(command).setText(step.empty() ? title : title + u' ' + toQString(step));
    actionOf(command).setEnabled(!step.empty());
}

} // namespace tessaly
