#pragma once

#include "app/CodeCopy.h"
#include "app/CodeTextAdapter.h"
#include "app/GradientExport.h"
#include "app/GradientIntake.h"
#include "app/MenuAnswers.h"
#include "app/StylesheetFile.h"
#include "codegen/PreviewFiles.h"
#include "codegen/Stylesheet.h"
#include "document/Document.h"
#include "foundation/NotificationCenter.h"

#include <QObject>
#include <cstdint>
#include <filesystem>
#include <memory>

namespace tessaly {

class MainWindow;

/// The program behind its one window: makes everything that the views show and work on, lends it to them,
/// keeps the code current with the gradient and switches the three pages under the tab bar.
class Tessaly : public QObject {
    Q_OBJECT

  public:
    /// Sets everything up; the window is then ready to be shown. The preview's folder is made in
    /// `temporaryDirectory`, the presets' in `applicationSupport`.
    Tessaly(std::filesystem::path temporaryDirectory, const std::filesystem::path& applicationSupport);
    Tessaly(const Tessaly&) = delete;
    Tessaly& operator=(const Tessaly&) = delete;
    ~Tessaly() override;

    MainWindow& mainWindow() { return *mainWindow_; }

    /// Takes the gradients of a file, as "Open..." does.
    void openFile(const QString& path) { intake_.openFile(path); }

  private:
    void lendToViews();
    void observe();
    void writeCode();
    void updateCode();
    void writeCodeAnew();
    void showSourceCodeView(std::int64_t index);

    std::unique_ptr<MainWindow> mainWindow_;
    Document document_;
    GradientIntake intake_;
    CodeTextAdapter htmlTextView_;
    CodeTextAdapter css3TextView_;
    Stylesheet stylesheet_;
    PreviewFiles previewFiles_;
    CodeCopy copy_;
    StylesheetFile stylesheetFile_;
    GradientExport export_;
    MenuAnswers menuAnswers_;
    NotificationCenter::Observation selectIndexChanged_;
    NotificationCenter::Observation needToUpdateWebCode_;
};

} // namespace tessaly
