#include "app/StylesheetFile.h"

#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/SavingFiles.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/UserFileError.h"
#include "foundation/Utf8.h"
#include "sourceview/qt/CustomTextView.h"

#include <utility>

namespace tessaly {

StylesheetFile::StylesheetFile(const CustomTextView& view, MainWindow& window)
    : view_{view}, window_{window} {
    constexpr int frame = 16; // milliseconds
    toBeSaved_.setInterval(frame);
    toBeSaved_.setSingleShot(true);
    connect(&toBeSaved_, &QTimer::timeout, this, &StylesheetFile::saveNow);
    connect(&view, &QPlainTextEdit::textChanged, this, &StylesheetFile::changed);
}

void StylesheetFile::save() {
    if (!file_) {
        saveAs();
    } else if (!saveIn(*file_)) {
        setFollowing(false);
    }
}

void StylesheetFile::saveAs() {
    ask([](bool /*saved*/) {});
}

void StylesheetFile::ask(const std::function<void(bool saved)>& then) {
    const QString name = file_ ? QString::fromStdString(file_->path().string()) : tr("gradient.css");
    askForFile(window_, tr("Save Stylesheet"), name, {{tr("Stylesheet"), QStringLiteral("css")}},
               [this, then](const std::filesystem::path& path, const QString& /*suffix*/) {
                   SavedFile file{path};
                   const bool saved = saveIn(file);
                   if (saved) {
                       file_ = std::move(file);
                   }
                   then(saved);
               });
}

bool StylesheetFile::saveIn(SavedFile& file) {
    toBeSaved_.stop();
    const std::error_code error = write(file, AtomicFile::Durability::Forced);
    tell(file, error);
    return !error;
}

void StylesheetFile::saveOnEveryChange(bool wanted) {
    if (!wanted) {
        finish();
        setFollowing(false);
    } else if (file_) {
        setFollowing(saveIn(*file_));
    } else {
        setFollowing(false); // until there is a file
        ask([this](bool saved) { setFollowing(saved); });
    }
}

void StylesheetFile::changed() {
    if (follows_ && !toBeSaved_.isActive()) {
        toBeSaved_.start();
    }
}

QString StylesheetFile::saveNow() {
    const std::error_code error = write(*file_, AtomicFile::Durability::Eventual);
    if (!error) {
        return {};
    }
    setFollowing(false);
    return tell(*file_, error);
}

void StylesheetFile::finish() {
    if (!toBeSaved_.isActive()) {
        return;
    }
    toBeSaved_.stop();
    if (const QString told = saveNow(); !told.isEmpty()) { // the window may be closed already
        DiagnosticLog::write(told.toStdString());
    }
}

std::error_code StylesheetFile::write(SavedFile& file, AtomicFile::Durability durability) const {
    return file.save(toUtf8(view_.text()), durability);
}

QString StylesheetFile::tell(const SavedFile& file, std::error_code error) {
    const bool isTheirs = error == UserFileError::ChangedByOthers;
    QString told =
        tellSaved(file.path(), error) + (isTheirs ? tr("; Save Stylesheet As replaces it") : QString{});
    window_.views().message->say(told);
    return told;
}

void StylesheetFile::setFollowing(bool follows) {
    follows_ = follows;
    Q_EMIT savesOnEveryChange(follows);
}

} // namespace tessaly
