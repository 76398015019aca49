#pragma once

#include "sourceview/CodeStretch.h"

#include <QWidget>

namespace tessaly {

class CustomTextView;

/// A page of the code area: a code view with its gutter.
class SourceView : public QWidget {
    Q_OBJECT

  public:
    SourceView(CodeLanguage language, const QString& accessibleName, QWidget* parent = nullptr);

    CustomTextView& textView() const { return *textView_; }

  private:
    CustomTextView* textView_;
};

} // namespace tessaly
