#pragma once

#include "codegen/qt/PreviewEngine.h"
#include "codegen/qt/engine/PreviewPage.h"
#include "codegen/qt/engine/PreviewRequestFilter.h"

#include <QWebEngineProfile>
#include <QWebEngineView>

namespace tessaly {

/// The engine of the toolkit, reduced to one page that reads two files.
class BrowserEngine : public PreviewEngine {
  public:
    BrowserEngine(QWidget& parent, Events events);

    void load(const QUrl& page, int order) override;
    void renewStylesheet(int order) override { page_.renewStylesheet(order); }
    QWidget& widget() override { return view_; }

  private:
    // In the order in which the toolkit wants them to end: the view first.
    PreviewRequestFilter filter_;
    QWebEngineProfile profile_; ///< off the record: nothing is kept
    PreviewPage page_{profile_};
    QWebEngineView view_;
};

} // namespace tessaly
