#pragma once

#include "sourceview/qt/SourceView.h"

namespace tessaly {

/// Holds the view of the page.
class HtmlSourceView : public SourceView {
    Q_OBJECT

  public:
    explicit HtmlSourceView(QWidget* parent = nullptr) : SourceView{tr("HTML code"), parent} {}
};

} // namespace tessaly
