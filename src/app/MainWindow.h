#pragma once

#include <QWidget>

class QBoxLayout;
class QPushButton;
class QStackedWidget;

namespace tessaly {

class CanvasView;
class CopyButton;
class Css3SourceView;
class HtmlSourceView;
class MainTabView;
class PresetPanel;
class StopControlPanel;
class WebPreviewView;

/// The one window and its layout: creates and places every view, and knows nothing of what they do.
class MainWindow : public QWidget {
    Q_OBJECT

  public:
    explicit MainWindow(QWidget* parent = nullptr);

    CanvasView& canvasView() const { return *canvasView_; }
    PresetPanel& presetPanel() const { return *presetPanel_; }
    MainTabView& mainTabView() const { return *mainTabView_; }
    QStackedWidget& sourceCodeContainerView() const { return *sourceCodeContainerView_; }
    Css3SourceView& css3SourceView() const { return *css3SourceView_; }
    HtmlSourceView& htmlSourceView() const { return *htmlSourceView_; }
    WebPreviewView& webPreviewView() const { return *webPreviewView_; }
    CopyButton& copyButton() const { return *copyButton_; }
    QPushButton& aboutButton() const { return *aboutButton_; }
    QPushButton& homepageButton() const { return *homepageButton_; }
    QPushButton& relatedAppsButton() const { return *relatedAppsButton_; }

  private:
    void layOut();
    QBoxLayout* buttonRow() const;
    QLayout* codeArea() const;
    QSize room() const; ///< that the screen has for the window

    StopControlPanel* stopControlPanel_;
    CanvasView* canvasView_;
    PresetPanel* presetPanel_;
    MainTabView* mainTabView_;
    CopyButton* copyButton_;
    QStackedWidget* sourceCodeContainerView_;
    Css3SourceView* css3SourceView_;
    HtmlSourceView* htmlSourceView_;
    WebPreviewView* webPreviewView_;
    QPushButton* aboutButton_;
    QPushButton* homepageButton_;
    QPushButton* relatedAppsButton_;
};

} // namespace tessaly
