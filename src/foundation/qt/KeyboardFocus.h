#pragma once

#include <QFocusEvent>
#include <QKeyEvent>
#include <utility>

namespace tessaly {

/// Whether the frame that shows who has the keyboard is due on a widget: it is once a key brought the focus
/// or was pressed there, and no longer after a click.
class KeyboardFocus {
  public:
    /// To be told of every event of the widget. True: the answer is another one now.
    bool isChangedBy(const QEvent& event) {
        const bool wasShown = std::exchange(isShown_, isShownAfter(event));
        return wasShown != isShown_;
    }

    bool isShown() const { return isShown_; }

  private:
    bool isShownAfter(const QEvent& event) const {
        switch (event.type()) {
        case QEvent::MouseButtonPress:
            return false;
        case QEvent::KeyPress:
            return isShown_ || !isModifier(static_cast<const QKeyEvent&>(event).key());
        case QEvent::FocusIn:
            return isShownAfterFocus(static_cast<const QFocusEvent&>(event).reason());
        default:
            return isShown_;
        }
    }

    bool isShownAfterFocus(Qt::FocusReason reason) const {
        const bool isReturn = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                              reason == Qt::MenuBarFocusReason;
        return isReturn ? isShown_ : reason != Qt::MouseFocusReason;
    }

    // These go with a click or a drag.
    static bool isModifier(int key) {
        return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_Meta;
    }

    bool isShown_ = false;
};

} // namespace tessaly
