#pragma once

#include "canvas/ControlInterfaces.h"

#include <QLineEdit>

namespace tessaly {

/// A text field that acts when editing ends and the text was changed since; Escape gives the text back. Until
/// then undo and redo are its own, and afterwards the document's. What assistive tools put in is taken
/// at once.
class FieldEdit : public QLineEdit, public TextField {
    Q_OBJECT

  public:
    /// Makes room for so many digits.
    explicit FieldEdit(int digits, QWidget* parent = nullptr);

    std::string text() const override { return QLineEdit::text().toStdString(); }
    void setText(std::string_view text) override;
    void setEnabled(bool enabled) override { QWidget::setEnabled(enabled); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Takes what has been typed so far as the end of an edit.
    void endEditing();

  Q_SIGNALS:
    /// The user ended an edit that changed the text.
    void edited();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void takePutIn();

    int digits_;
    QString shown_; ///< the text at the last end of editing or setting
};

} // namespace tessaly
