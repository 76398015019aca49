#pragma once

#include "canvas/NumberFormatter.h"
#include "canvas/qt/FieldEdit.h"

namespace tessaly {

/// A number field: takes no keystroke its formatter refuses. Up, Down, Page Up and Page Down are left to the
/// stepper beside it.
class NumberFieldEdit : public FieldEdit {
    Q_OBJECT

  public:
    NumberFieldEdit(NumberFormatter formatter, int digits, QWidget* parent = nullptr);

  Q_SIGNALS:
    /// The user wants the value stepped so many steps up.
    void stepped(int steps);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tessaly
