#pragma once

#include "sourceview/qt/SourceView.h"

namespace tessaly {

/// Holds the view of the stylesheet.
class Css3SourceView : public SourceView {
    Q_OBJECT

  public:
    explicit Css3SourceView(QWidget* parent = nullptr) : SourceView{tr("CSS code"), parent} {}
};

} // namespace tessaly
