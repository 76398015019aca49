#pragma once

#include "canvas/ControlInterfaces.h"
#include "canvas/NumberFormatter.h"

#include <QLineEdit>

namespace tessaly {

/// A number field that takes no keystroke its formatter refuses. It acts when editing ends and the text was
/// changed since; Up, Down, Page Up and Page Down are left to the stepper beside it.
class NumberFieldEdit : public QLineEdit, public NumberField {
    Q_OBJECT

  public:
    NumberFieldEdit(NumberFormatter formatter, int digits, QWidget* parent = nullptr);

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
    /// The user wants the value stepped so many steps up.
    void stepped(int steps);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int digits_;    ///< digits to make room for
    QString shown_; ///< the text at the last end of editing or setting
};

} // namespace tessaly
