#pragma once

#include "app/PictureSizeDialog.h"
#include "exchange/Reading.h"

#include <QObject>
#include <QSize>
#include <filesystem>
#include <functional>
#include <system_error>

namespace tessaly {

class Document;
class MainWindow;

/// Writes the gradient as a picture, and the presets as a file that others can read.
class GradientExport : public QObject {
    Q_OBJECT

  public:
    /// Both must outlive the object.
    GradientExport(Document& document, MainWindow& window);

    void exportPicture();
    void exportPresets();

  private:
    using Job = std::function<std::error_code(const Progress& progress)>;

    void askForPicture(QSize size);
    void write(const std::filesystem::path& file, const Job& job);

    Document& document_;
    MainWindow& window_;
    QSize pictureSize_ = PictureSizeDialog::proposed; ///< the last one
};

} // namespace tessaly
