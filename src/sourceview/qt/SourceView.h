#pragma once

#include <QWidget>

namespace tessaly {

class CustomTextView;
class MarkerLineNumberView;

/// A page of the code area: a code view with its gutter, and nothing of its own.
class SourceView : public QWidget {
    Q_OBJECT

  public:
    CustomTextView* textView() const { return textView_; }
    MarkerLineNumberView* lineNumberView() const { return lineNumberView_; }

  protected:
    SourceView(const QString& accessibleName, QWidget* parent);

  private:
    CustomTextView* textView_;
    MarkerLineNumberView* lineNumberView_;
};

} // namespace tessaly
