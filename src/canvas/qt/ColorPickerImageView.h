#pragma once

#include "canvas/ControlInterfaces.h"

#include <QAbstractButton>

class QColorDialog;

namespace tessaly {

/// The colour well: a rounded swatch that opens the program's one colour panel and announces every setting of
/// its colour with "ColorChanged", its `ColorWell` as object.
class ColorPickerImageView : public QAbstractButton, public ColorWell {
    Q_OBJECT

  public:
    explicit ColorPickerImageView(QWidget* parent = nullptr);

    Color backgroundColor() const override { return backgroundColor_; }

    /// A colour without RGB form is replaced by the palette's control highlight.
    void setBackgroundColor(const Color& color) override;
    void setEnabled(bool enabled) override { QWidget::setEnabled(enabled); }

    /// Crosses the swatch out. Nothing in the program sets it; kept for a stop that has no colour of its own.
    bool isColorNotSet() const { return isColorNotSet_; }
    void setIsColorNotSet(bool notSet) { isColorNotSet_ = notSet; }

    QSize sizeHint() const override;

  Q_SIGNALS:
    /// The panel was opened.
    void pickingBegun();
    /// It was left by Escape.
    void pickingGivenUp();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void openColorPanel();
    void showInColorPanel();

    Color backgroundColor_;
    bool isColorNotSet_ = false;
    QColorDialog* colorPanel_ = nullptr;
};

} // namespace tessaly
