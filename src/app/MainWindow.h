#pragma once

#include <QWidget>
#include <memory>

class QMimeData;
class QPushButton;
class QStackedWidget;

namespace tessaly {

class CanvasView;
class CopyButton;
class CopyOptions;
class MainMenu;
class MainTabView;
class MessageLine;
class PresetPanel;
class SourceView;
class StopControlPanel;
class WebPreviewView;
class WindowArrangement;

/// The one window and its layout: creates every view, and knows nothing of what they do.
class MainWindow : public QWidget {
    Q_OBJECT

  public:
    explicit MainWindow(QWidget* parent = nullptr);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    /// Made and placed by the window, which owns them; who works with them borrows them.
    struct Views {
        MainMenu* menu;
        StopControlPanel* stopControls;
        CanvasView* canvas;
        PresetPanel* presets;
        MainTabView* tabs;
        CopyButton* copy;
        CopyOptions* copyOptions;
        QStackedWidget* sourceCodeContainer;
        SourceView* stylesheet;
        SourceView* page;
        WebPreviewView* preview;
        QPushButton* about;
        QPushButton* homepage;
        QPushButton* relatedApps;
        MessageLine* message;
    };
    const Views& views() const { return views_; }

    /// Stylesheet, page or preview.
    void showPage(QWidget* page);
    const QWidget* shownPage() const;

  Q_SIGNALS:
    /// A text, or files, beside the views that take texts themselves.
    void dropped(const QMimeData& data);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void evenHeights();

    Views views_;
    std::unique_ptr<WindowArrangement> arrangement_;
};

} // namespace tessaly
