#pragma once

#include "app/CodeTextAdapter.h"
#include "codegen/WebCode.h"
#include "foundation/NotificationCenter.h"

#include <QObject>
#include <cstdint>
#include <filesystem>

namespace tessaly {

class About;
class MainWindow;
class RelatedApps;

/// The controller of the main window: sets the code side up, keeps it current with the canvas, switches the
/// three pages under the tab bar and answers the window's buttons.
class Tessaly : public QObject {
    Q_OBJECT

  public:
    /// The window must outlive the controller.
    Tessaly(MainWindow& mainWindow, std::filesystem::path temporaryDirectory);

    /// Once, when the window is wired and the canvas is set up.
    void awakeFromNib();

    void selectWebIndexDidChangeNotification(const Notification& notification);

    /// Shows the stylesheet (0), the page (1) or the preview (any other index).
    void showSourceCodeView(std::int64_t index);

    /// Copies the whole text of the code view that is shown; the preview has none.
    void copyCode();

    void showAbout();
    void showHomepage();
    void showRelatedApps();

  private:
    MainWindow& mainWindow_;
    CodeTextAdapter htmlTextView_;
    CodeTextAdapter css3TextView_;
    WebCode webCode_;
    About* about_ = nullptr;             ///< made when first shown, then kept
    RelatedApps* relatedApps_ = nullptr; ///< likewise
    NotificationCenter::Observation selectIndexChanged_;
    NotificationCenter::Observation needToUpdateWebCode_;
};

} // namespace tessaly
