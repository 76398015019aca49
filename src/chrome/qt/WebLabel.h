#pragma once

#include <QLabel>

namespace tessaly {

/// A label whose text is a web address. It is blue, underlined under the pointer, and opens its address in
/// the default browser on a click, and on Enter or Space while it has the keyboard focus.
class WebLabel : public QLabel {
    Q_OBJECT

  public:
    explicit WebLabel(const QString& address, QWidget* parent = nullptr);

    void openAddress();

  protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void setUnderlined(bool underlined);
    void updateColor();
};

} // namespace tessaly
