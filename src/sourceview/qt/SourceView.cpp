#include "sourceview/qt/SourceView.h"

#include "sourceview/qt/MarkerLineNumberView.h"

#include <QVBoxLayout>

namespace tessaly {

SourceView::SourceView(const QString& accessibleName, QWidget* parent)
    : QWidget{parent},
      textView_{new CustomTextView{this}},
      lineNumberView_{new MarkerLineNumberView{textView_}} {
    lineNumberView_->install();
    textView_->awakeFromNib();
    textView_->setAccessibleName(accessibleName);
    setFocusProxy(textView_);
    auto* const layout = new QVBoxLayout{this};
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textView_);
}

} // namespace tessaly
