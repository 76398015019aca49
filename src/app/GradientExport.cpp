#include "app/GradientExport.h"

#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/SavingFiles.h"
#include "app/WorkBeside.h"
#include "document/Document.h"
#include "exchange/PngWriter.h"
#include "exchange/PresetTexts.h"
#include "exchange/SvgWriter.h"
#include "foundation/UserFile.h"
#include "raster/GradientPicture.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace tessaly {
namespace {

const QString svg = QStringLiteral("svg");

std::error_code writeText(const std::filesystem::path& file, const std::string& text,
                          const Progress& progress) {
    return progress(1.0) ? writeUserFile(file, text, AtomicFile::Durability::Forced)
                         : std::make_error_code(std::errc::operation_canceled);
}

} // namespace

GradientExport::GradientExport(Document& document, MainWindow& window)
    : document_{document}, window_{window} {}

void GradientExport::exportPicture() {
    auto* const dialog = new PictureSizeDialog{pictureSize_, &window_};
    connect(dialog, &PictureSizeDialog::chosen, this, &GradientExport::askForPicture);
    dialog->open();
}

void GradientExport::askForPicture(QSize size) {
    pictureSize_ = size;
    const QList<FileForm> forms{{tr("PNG picture"), QStringLiteral("png")}, {tr("SVG picture"), svg}};
    askForFile(
        window_, tr("Export Picture"), tr("gradient.png"), forms,
        [this, size](const std::filesystem::path& file, const QString& suffix) {
            const GlobalData& record = document_.record();
            const auto opacity = GradientRamp::opacityIn(record.colorFormatType);
            if (suffix == svg) {
                write(file, [file, gradient = record.gradient, opacity, size](const Progress& progress) {
                    return writeText(file, svgPictureText(gradient, opacity, size.width(), size.height()),
                                     progress);
                });
            } else {
                const GradientPicture picture{record.gradient, opacity, size.width(), size.height()};
                write(file, [file, picture](const Progress& progress) {
                    return writePngFile(picture, file, progress);
                });
            }
        });
}

void GradientExport::exportPresets() {
    const QList<FileForm> forms{{tr("Stylesheet"), QStringLiteral("css")}, {tr("SVG picture"), svg}};
    askForFile(window_, tr("Export Presets"), tr("presets.css"), forms,
               [this](const std::filesystem::path& file, const QString& suffix) {
                   const auto textOf = suffix == svg ? presetsSvgText : presetsCssText;
                   const GradientList& presets = document_.gallery().presetGradient();
                   std::vector<Gradient> gradients(presets.size());
                   std::ranges::transform(presets, gradients.begin(),
                                          [](const auto& preset) { return *preset; });
                   write(file, [file, textOf, gradients](const Progress& progress) {
                       return writeText(file, textOf(gradients), progress);
                   });
               });
}

void GradientExport::write(const std::filesystem::path& file, const Job& job) {
    const auto error = std::make_shared<std::error_code>();
    workBeside(
        window_, tr("Writing…"), [error, job](const Progress& progress) { *error = job(progress); },
        [this, error, file] { window_.views().message->say(tellSaved(file, *error)); });
}

} // namespace tessaly
