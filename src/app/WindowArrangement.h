#pragma once

#include "app/MainWindow.h"

class QGridLayout;
class QHBoxLayout;

namespace tessaly {

/// Where the views lie in the window: canvas and controls beside the presets, and the code below. In a wide
/// window the preview stands beside the code, and the list of presets is as high as both.
class WindowArrangement {
  public:
    /// Places the views, which the window owns, for a screen with so much room: where it is small and the
    /// font large, the buttons stand beside the tabs.
    WindowArrangement(QWidget& window, const MainWindow::Views& views, QSize room);

    /// Gives the list of presets its size in a window that is not shown yet: what is hidden is not laid out
    /// by itself.
    void layOut();

    /// One of the pages under the tab bar.
    void showPage(QWidget* page);
    const QWidget* shownPage() const { return page_; }

    void setWindowWidth(int width);

  private:
    void placeTools(QHBoxLayout& header, QSize room);
    void arrange();

    const MainWindow::Views& views_;
    QGridLayout* grid_;
    QWidget* side_; ///< the presets, and the buttons
    QWidget* header_;
    QWidget* page_;
    bool isTight_ = false; ///< the controls reach below the presets
    bool isWide_ = false;
};

} // namespace tessaly
