#pragma once

#include "document/Incoming.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <string_view>

class QMimeData;

namespace tessaly {

class Document;
class MainWindow;

/// Takes what comes in from outside: pasted, opened, dropped on the window, named on the command line, typed
/// as a colour. One gradient replaces the one being edited, of several the user chooses, a colour goes to the
/// selected stop; what was changed on the way, or why there is nothing to take, the window says.
class GradientIntake : public QObject {
    Q_OBJECT

  public:
    /// Both must outlive the object.
    GradientIntake(Document& document, MainWindow& window);

    static bool canTake(const QMimeData& data);

    void paste();
    void open();
    void drop(const QMimeData& data);
    /// Waits until no mouse button is down and nothing else is asked of the user.
    void openFile(const QString& path);
    void takeTypedColor(const std::string& text);

  private:
    void openWaiting();

    struct WaitingFile {
        QString path;
        std::string leftOut; ///< what was dropped with it, a phrase; empty: nothing
    };
    using Reader = std::function<Incoming(const Progress& progress)>;

    void takeFrom(const QMimeData& data, const QString& source, std::string_view step);
    void read(const Reader& reader, std::size_t size, std::string_view step);
    void take(const Incoming& incoming, std::string_view step);
    void takeGradient(const FoundGradient& found, const std::string& leftOut, std::string_view step);
    void takeColor(const ReadColor& color);
    void choose(const Incoming& incoming, std::string_view step);
    void say(const QString& message);

    Document& document_;
    MainWindow& window_;
    QList<WaitingFile> waiting_;
    QTimer retry_;
};

} // namespace tessaly
