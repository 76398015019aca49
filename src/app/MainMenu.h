#pragma once

#include <QMenuBar>
#include <array>
#include <functional>
#include <string_view>

class QAction;

namespace tessaly {

/// What the menus offer, in their order.
enum class Command {
    New,
    Open,
    SaveStylesheet,
    SaveStylesheetAs,
    SaveOnEveryChange,
    ExportPicture,
    ExportPresets,
    Quit,
    Undo,
    Redo,
    CopyStylesheet,
    CopyStandardDeclaration,
    CopyStandardValue,
    PasteGradient,
    AddStop,
    AddStopInBetween,
    DuplicateStop,
    DeleteStop,
    Reverse,
    DistributeEvenly,
    SortStops,
    WriteStylesheetAnew,
    About,
    Homepage,
    RelatedApplications
};

inline constexpr std::size_t commandCount = static_cast<std::size_t>(Command::RelatedApplications) + 1;

/// The menu bar: all that the program can do, by title and key.
class MainMenu : public QMenuBar {
    Q_OBJECT

  public:
    explicit MainMenu(QWidget* parent = nullptr);

    /// Has `run` called when the command is chosen, or its key pressed.
    void onCommand(Command command, std::function<void()> run);

    void setEnabled(Command command, bool enabled);

    /// Names the step that "Undo" or "Redo" would take; without one the command is disabled.
    void setStep(Command command, std::string_view step);

    /// For another menu that offers the command too.
    QAction& actionOf(Command command) { return *actions_[static_cast<std::size_t>(command)]; }

  private:
    std::array<QAction*, commandCount> actions_{};
};

} // namespace tessaly
