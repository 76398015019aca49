#pragma once

#include "app/MainMenu.h"
#include "model/History.h"

#include <QObject>
#include <functional>

namespace tessaly {

class About;
class CodeCopy;
class Document;
class GradientExport;
class GradientIntake;
class MainWindow;
class RelatedApps;
class StylesheetFile;

/// What the commands of the menus, and the buttons that stand for some of them, do; and which of them can be
/// done now.
class MenuAnswers : public QObject {
    Q_OBJECT

  public:
    /// What the commands act on; all of it must outlive the object.
    struct Borrowed {
        Document& document;
        MainWindow& window;
        GradientIntake& intake;
        CodeCopy& copy;
        StylesheetFile& stylesheetFile;
        GradientExport& exports;
    };
    MenuAnswers(const Borrowed& with, const std::function<void()>& writeCodeAnew);

    /// Enables what can be done now, and names the steps that can be taken back and done again.
    void update();

  private:
    void answerFile();
    void answerEdit();
    void answerGradient();
    void answerHelp();
    void on(Command command, const std::function<void()>& run);
    void standFor(Command command, QAction& other);
    void runCommand(const std::function<void()>& run);
    void takeStep(bool (History::*step)());

    Borrowed with_;
    About* about_ = nullptr; ///< like the next, none before it is first shown
    RelatedApps* relatedApps_ = nullptr;
};

} // namespace tessaly
