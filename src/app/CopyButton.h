#pragma once

#include <QPushButton>
#include <QTimer>

namespace tessaly {

/// Copies a text to the clipboard and says so for a moment.
class CopyButton : public QPushButton {
    Q_OBJECT

  public:
    explicit CopyButton(QWidget* parent = nullptr);

    void copy(const QString& text);

  private:
    static QString confirmation();

    QTimer shown_; ///< runs while the confirmation is
};

} // namespace tessaly
