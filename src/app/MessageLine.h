#pragma once

#include <QLabel>

namespace tessaly {

/// The line at the bottom edge of the window, empty most of the time: says what was done and cannot be seen,
/// or why it could not be done. What it says goes with the next key or click.
class MessageLine : public QLabel {
    Q_OBJECT

  public:
    explicit MessageLine(QWidget* parent = nullptr);

    void say(const QString& message);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showElided();

    QString message_;
};

} // namespace tessaly
