#include "app/StylesheetFile.h"

#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/SavingFiles.h"
#include "foundation/Utf8.h"
#include "sourceview/qt/CustomTextView.h"

namespace tessaly {

using Durability = AtomicFile::Durability;

StylesheetFile::StylesheetFile(const CustomTextView& view, MainWindow& window)
    : view_{view}, window_{window} {
    constexpr int frame = 16; // milliseconds
    toBeSaved_.setInterval(frame);
    toBeSaved_.setSingleShot(true);
    connect(&toBeSaved_, &QTimer::timeout, this, &StylesheetFile::saveNow);
    connect(&view, &QPlainTextEdit::textChanged, this, &StylesheetFile::changed);
}

void StylesheetFile::save() {
    if (file_) {
        saveAndTell();
    } else {
        saveAs();
    }
}

void StylesheetFile::saveAs() {
    ask([this] { saveAndTell(); });
}

bool StylesheetFile::saveAndTell() {
    toBeSaved_.stop();
    const std::error_code error = write(Durability::Forced);
    window_.views().message->say(tellSaved(file_->path(), error));
    return !error;
}

void StylesheetFile::ask(const std::function<void()>& then) {
    const QString name = file_ ? QString::fromStdString(file_->path().string()) : tr("gradient.css");
    askForFile(window_, tr("Save Stylesheet"), name, {{tr("Stylesheet"), QStringLiteral("css")}},
               [this, then](const std::filesystem::path& file, const QString& /*suffix*/) {
                   file_.emplace(file);
                   then();
               });
}

void StylesheetFile::saveOnEveryChange(bool wanted) {
    if (!wanted) {
        finish();
        stopFollowing();
        return;
    }
    const auto follow = [this] {
        follows_ = saveAndTell();
        Q_EMIT savesOnEveryChange(follows_);
    };
    if (file_) {
        follow();
    } else {
        Q_EMIT savesOnEveryChange(false); // until there is a file
        ask(follow);
    }
}

void StylesheetFile::changed() {
    if (follows_ && !toBeSaved_.isActive()) {
        toBeSaved_.start();
    }
}

void StylesheetFile::saveNow() {
    if (const std::error_code error = write(Durability::Eventual)) {
        window_.views().message->say(tellSaved(file_->path(), error));
        stopFollowing();
    }
}

void StylesheetFile::finish() {
    if (toBeSaved_.isActive()) {
        toBeSaved_.stop();
        saveNow();
    }
}

std::error_code StylesheetFile::write(Durability durability) {
    return file_->save(toUtf8(view_.text()), durability);
}

void StylesheetFile::stopFollowing() {
    follows_ = false;
    Q_EMIT savesOnEveryChange(false);
}

} // namespace tessaly
