#pragma once

#include <QPushButton>

namespace tessaly {

/// The arrow at the side of "Copy": the forms in which the code can be copied.
class CopyOptions : public QPushButton {
    Q_OBJECT

  public:
    explicit CopyOptions(QWidget* parent = nullptr);

    QAction& wholeText() { return *wholeText_; }
    QAction& standardDeclaration() { return *standardDeclaration_; }
    QAction& standardValue() { return *standardValue_; }

  private:
    QMenu* forms_;
    QAction* wholeText_;
    QAction* standardDeclaration_;
    QAction* standardValue_;
};

} // namespace tessaly
