#pragma once

#include <QDialog>

class QComboBox;
class QSpinBox;

namespace tessaly {

/// Asks how large a picture is to be, in pixels: one of the sizes that people use, or any other.
class PictureSizeDialog : public QDialog {
    Q_OBJECT

  public:
    static constexpr QSize proposed{1920, 1080};

    PictureSizeDialog(QSize size, QWidget* parent);

  Q_SIGNALS:
    void chosen(QSize size);

  private:
    QSize pictureSize() const;
    void take(QSize size);
    void showUsual();

    QComboBox* usual_;
    QSpinBox* width_;
    QSpinBox* height_;
};

} // namespace tessaly
