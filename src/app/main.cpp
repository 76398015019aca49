#include "app/FontConfiguration.h"
#include "app/MainWindow.h"
#include "app/ProcessSetup.h"
#include "app/QuitOnSignal.h"
#include "app/SingleInstance.h"
#include "app/Tessaly.h"
#include "chrome/ProductInfo.h"
#include "chrome/qt/ProgramIcon.h"
#include "foundation/qt/AfterFirstPaint.h"
#include "foundation/qt/ToQString.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>
#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <span>

namespace tessaly {
namespace {

// Answers "--help" or "--version" on standard output and ends the process. That needs no display, so it comes
// before the GUI application is made; everything else on the command line is left to that.
void answerCommandLine(int argc, char** argv) {
    const QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show how to call the program, and end.")};
    const QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show which version this is, and end.")};
    QCommandLineParser parser;
    // The toolkit's own options have one dash: "-reverse" asks for no version.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(toQString(product::purpose));
    parser.addOptions({help, version});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("A stylesheet, page, SVG picture or preset file to open."),
                                 QStringLiteral("[FILE]"));
    QStringList arguments;
    for (const char* const argument : std::span{argv, static_cast<std::size_t>(argc)}) {
        arguments += QString::fromLocal8Bit(argument);
    }
    parser.parse(arguments);
    if (parser.isSet(help)) {
        const QCoreApplication application{argc, argv}; // the help names the program as it was called
        parser.showHelp();
    }
    if (parser.isSet(version)) {
        parser.showVersion();
    }
}

// What the toolkit left of the command line, as whole paths.
QStringList filesToOpen() {
    QStringList files;
    for (const QString& argument : QCoreApplication::arguments().mid(1)) {
        if (!argument.startsWith(u'-')) {
            files += QDir::current().absoluteFilePath(argument);
        }
    }
    return files;
}

// The folder that the presets' own folder lies in. A relative one from the environment is ignored, as the
// rules for base directories ask.
QString applicationSupport() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.local/share");
}

// Empty only when the environment names a folder that is missing.
QString temporaryFolder() {
    const QString folder = QDir::tempPath();
    return folder.isEmpty() ? QStringLiteral("/tmp") : folder;
}

void showAgain(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace
} // namespace tessaly

int main(int argc, char** argv) {
    using namespace tessaly;
    setUpProcess();
    QApplication::setApplicationName(toQString(product::name));
    QApplication::setApplicationVersion(toQString(product::version()));
    answerCommandLine(argc, argv);
    const std::jthread fonts = loadFontConfiguration();
    QApplication application{argc, argv};
    QApplication::setDesktopFileName(toQString(product::desktopId()));
    const QStringList files = filesToOpen();
    const SingleInstance instance{applicationSupport(), files};
    if (!instance.isFirst()) {
        return instance.wasHeard() ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    const QuitOnSignal quitOnSignal;

    Tessaly program{temporaryFolder().toStdString(), applicationSupport().toStdString()};
    MainWindow& mainWindow = program.mainWindow();
    const auto open = [&program](const QStringList& paths) {
        for (const QString& path : paths) {
            program.openFile(path);
        }
    };
    QObject::connect(&instance, &SingleInstance::startedAgain, &mainWindow, [&](const QStringList& paths) {
        showAgain(mainWindow);
        open(paths);
    });
    afterFirstPaint(mainWindow, [] { QApplication::setWindowIcon(programIcon()); });
    mainWindow.show();
    open(files);
    return QApplication::exec();
}
