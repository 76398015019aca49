#include "app/CommandLine.h"

#include "chrome/ProductInfo.h"
#include "foundation/qt/ToQString.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstddef>
#include <span>

namespace tessaly {

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

} // namespace tessaly
