#pragma once

#include "foundation/SavedFile.h"

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>

namespace tessaly {

class CustomTextView;
class MainWindow;

/// The file that the stylesheet is saved in as the view shows it: at the user's command, or at every change.
/// Never in place of what others wrote there meanwhile, unless the user names the file anew.
class StylesheetFile : public QObject {
    Q_OBJECT

  public:
    /// Both must outlive the object.
    StylesheetFile(const CustomTextView& view, MainWindow& window);

    /// Asks for a file where there is none yet.
    void save();
    void saveAs();

    /// Whether every change is saved, at most one a picture of the display. Asks for a file where there is
    /// none yet; a failure ends it.
    void saveOnEveryChange(bool wanted);

    /// Saves the last change if it is still to be saved.
    void finish();

  Q_SIGNALS:
    void savesOnEveryChange(bool saves);

  private:
    /// Saves in a file that the user names, which from then on is the one if that succeeds.
    void ask(const std::function<void(bool saved)>& then);
    bool saveIn(SavedFile& file);
    void changed();
    /// What was told; empty: it was saved.
    QString saveNow();
    std::error_code write(SavedFile& file, AtomicFile::Durability durability) const;
    QString tell(const SavedFile& file, std::error_code error);
    void setFollowing(bool follows);

    const CustomTextView& view_;
    MainWindow& window_;
    std::optional<SavedFile> file_;
    bool follows_ = false;
    QTimer toBeSaved_; ///< runs from the first change that is not saved yet
};

} // namespace tessaly
