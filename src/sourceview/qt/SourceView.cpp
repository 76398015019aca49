#include "sourceview/qt/SourceView.h"

#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/MarkerLineNumberView.h"

#include <QVBoxLayout>

namespace tessaly {

SourceView::SourceView(CodeLanguage language, const QString& accessibleName, QWidget* parent)
    : QWidget{parent}, textView_{new CustomTextView{language, this}} {
    new MarkerLineNumberView{*textView_}; // which owns it
    textView_->setAccessibleName(accessibleName);
    setFocusProxy(textView_);
    auto* const layout = new QVBoxLayout{this};
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textView_);
}

} // namespace tessaly
