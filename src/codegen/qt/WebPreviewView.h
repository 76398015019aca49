#pragma once

#include "codegen/EngineRestarts.h"
#include "codegen/PreviewOrders.h"
#include "codegen/WebView.h"
#include "codegen/qt/PreviewModuleFile.h"

#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <memory>

class QGridLayout;
class QLabel;

namespace tessaly {

/// The live preview in a real browser engine, which is loaded when the view is first seen: nobody pays for it
/// before looking at it. Changes that arrive while one is on its way are joined into one more, those that
/// arrive while the view is hidden wait for it to be shown. Whatever the engine has not painted yet is
/// covered by the palette's base colour; where there is no engine, one line there tells why.
class WebPreviewView : public QWidget, public WebView {
    Q_OBJECT

  public:
    /// `module` is the file of the engine's module.
    explicit WebPreviewView(QString module = installedPreviewModule(), QWidget* parent = nullptr);
    WebPreviewView(const WebPreviewView&) = delete;
    WebPreviewView& operator=(const WebPreviewView&) = delete;
    ~WebPreviewView() override;

    void loadFile(const std::filesystem::path& page) override;
    void reload() override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void loadModule();
    void startEngine();
    void changed();
    void proceed();
    void orderFinished(int order, bool sound);
    void painted(int order);
    void engineEnded();
    void cover(const QString& why = {});

    QString modulePath_;
    PreviewModule* module_ = nullptr;
    QUrl url_;
    PreviewOrders orders_;
    bool engineRuns_ = false; ///< it may have ended and still be there
    EngineRestarts restarts_;
    QTimer startAgain_;
    QGridLayout* layers_; ///< of one cell, the cover above the engine's widget
    QLabel* cover_;
    std::unique_ptr<PreviewEngine> engine_;
};

} // namespace tessaly
