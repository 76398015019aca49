#include "app/GradientIntake.h"

#include "app/GradientChooser.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/WorkBeside.h"
#include "document/Document.h"
#include "foundation/qt/ToQString.h"
#include "model/EditStep.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>
#include <memory>

namespace tessaly {
namespace {

constexpr std::size_t readAtOnce = std::size_t{256} << 10U; // what takes longer than a picture of the display

const QString svg = QStringLiteral("image/svg+xml");

} // namespace

GradientIntake::GradientIntake(Document& document, MainWindow& window)
    : document_{document}, window_{window} {
    constexpr int pause = 100; // milliseconds
    retry_.setInterval(pause);
    retry_.setSingleShot(true);
    connect(&retry_, &QTimer::timeout, this, &GradientIntake::openWaiting);
}

bool GradientIntake::canTake(const QMimeData& data) {
    return data.hasUrls() || data.hasText() || data.hasFormat(svg);
}

void GradientIntake::paste() {
    takeFrom(*QGuiApplication::clipboard()->mimeData(), tr("the clipboard"), editStep::pasteGradient);
}

void GradientIntake::drop(const QMimeData& data) {
    takeFrom(data, tr("what was dropped"), editStep::openGradient);
}

void GradientIntake::takeFrom(const QMimeData& data, const QString& source, std::string_view step) {
    const QList<QUrl> urls = data.urls();
    const auto file = std::ranges::find_if(urls, &QUrl::isLocalFile);
    if (file != urls.end()) {
        const auto further = std::ranges::count_if(file + 1, urls.end(), &QUrl::isLocalFile);
        const QString leftOut = tr("%n more file(s) left out", nullptr, static_cast<int>(further));
        waiting_ += {file->toLocalFile(), further > 0 ? leftOut.toStdString() : std::string{}};
        openWaiting();
        return;
    }
    const std::string text =
        (data.hasText() ? data.text().toUtf8() : data.data(svg)).toStdString(); // a copy, for another thread
    read([text, name = source.toStdString()](
             const Progress& progress) { return readIncomingText(text, name, progress); },
         text.size(), step);
}

void GradientIntake::open() {
    auto* const dialog = new QFileDialog{&window_,
                                         tr("Open Gradient"),
                                         {},
                                         tr("Gradients (*.css *.html *.htm *.svg *.sqlite3);;All files (*)")};
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &GradientIntake::openFile);
    dialog->open();
}

void GradientIntake::openFile(const QString& path) {
    waiting_ += {path, {}};
    openWaiting();
}

void GradientIntake::openWaiting() {
    if (waiting_.isEmpty()) {
        return;
    }
    if (QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activeModalWidget() != nullptr) {
        retry_.start();
        return;
    }
    const WaitingFile next = waiting_.takeFirst();
    retry_.start(); // for the next one
    read(
        [file = std::filesystem::path{next.path.toStdU16String()},
         leftOut = next.leftOut](const Progress& progress) {
            Incoming incoming = readIncomingFile(file, progress);
            addPhrase(incoming.gradients.empty() ? incoming.failure : incoming.leftOut, leftOut);
            return incoming;
        },
        static_cast<std::size_t>(QFileInfo{next.path}.size()), editStep::openGradient);
}

void GradientIntake::takeTypedColor(const std::string& text) {
    say({});
    const auto color = readCopiedColor(text);
    if (color) {
        takeColor(*color);
    } else {
        say(tr("“%1” is no color").arg(toQString(text)));
    }
    document_.editor().controls().showSelectedStop(); // in the form that the field has
}

void GradientIntake::read(const Reader& reader, std::size_t size, std::string_view step) {
    if (size <= readAtOnce) {
        take(reader({}), step);
        return;
    }
    const auto incoming = std::make_shared<Incoming>();
    workBeside(
        window_, tr("Reading…"),
        [reader, incoming](const Progress& progress) { *incoming = reader(progress); },
        [this, incoming, step] { take(*incoming, step); });
}

void GradientIntake::take(const Incoming& incoming, std::string_view step) {
    if (incoming.color) {
        takeColor(*incoming.color);
    } else if (incoming.gradients.empty()) {
        say(toQString(incoming.failure));
    } else if (incoming.gradients.size() == 1) {
        takeGradient(incoming.gradients.front(), incoming.leftOut, step);
    } else {
        choose(incoming, step);
    }
}

void GradientIntake::takeGradient(const FoundGradient& found, const std::string& leftOut,
                                  std::string_view step) {
    document_.takeGradient(found.gradient, step);
    std::string told = notesOf(found);
    addPhrase(told, leftOut);
    say(toQString(told));
}

void GradientIntake::takeColor(const ReadColor& color) {
    if (!document_.takeColor(color)) {
        say(tr("No stop is selected"));
    } else if (color.clipped) {
        say(tr("The color lies outside sRGB and was clipped"));
    } else if (color.alpha < 1.0 && !colorFormat::carriesOpacity(document_.record().colorFormatType)) {
        say(tr("Opacity left out: the notation carries none"));
    }
}

void GradientIntake::choose(const Incoming& incoming, std::string_view step) {
    auto* const chooser = new GradientChooser{incoming, &window_};
    connect(chooser, &GradientChooser::editThis, this,
            [this, step, leftOut = incoming.leftOut](const FoundGradient& found) {
                takeGradient(found, leftOut, step);
            });
    connect(chooser, &GradientChooser::addToPresets, this,
            [this, leftOut = incoming.leftOut](const std::vector<Gradient>& gradients) {
                document_.addToPresets(gradients);
                say(toQString(leftOut));
            });
    chooser->open();
}

void GradientIntake::say(const QString& message) {
    window_.views().message->say(message);
}

} // namespace tessaly
