#pragma once

#include "codegen/WebView.h"

#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <memory>

class QWebEngineProfile;
class QWebEngineView;

namespace tessaly {

class PreviewPage;
class PreviewRequestFilter;

/// The live preview in a real browser engine. The engine is started when the view is first shown: nobody pays
/// for it before looking at it. Reloads asked for while one is running are joined into one more.
class WebPreviewView : public QWidget, public WebView {
    Q_OBJECT

  public:
    /// To be called before the application object is made: prepares the process for an engine that starts
    /// late.
    static void prepareProcess();

    explicit WebPreviewView(QWidget* parent = nullptr);
    WebPreviewView(const WebPreviewView&) = delete;
    WebPreviewView& operator=(const WebPreviewView&) = delete;
    ~WebPreviewView() override;

    void loadFile(const std::filesystem::path& page) override;
    void reload() override;
    void redisplay() override { update(); }

    /// The engine's view; null before the first showing.
    QWebEngineView* engineView() const { return view_.get(); }

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void startEngine();
    void makeView();
    void embedView();
    void renderProcessEnded();
    void loadPage();
    void loadFinished();
    void takeBackground();

    QUrl url_;
    bool loading_ = false;
    bool reloadAgain_ = false;
    QTimer makeAgain_;
    QWidget* container_ = nullptr; ///< what the view's window is embedded in
    // In the order in which the engine wants them to end: the view first, the profile last.
    std::unique_ptr<PreviewRequestFilter> filter_;
    std::unique_ptr<QWebEngineProfile> profile_;
    std::unique_ptr<PreviewPage> page_;
    std::unique_ptr<QWebEngineView> view_;
};

} // namespace tessaly
