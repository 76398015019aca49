#pragma once

#include <QKeyEvent>
#include <algorithm>
#include <initializer_list>

namespace tessaly {

/// Keeps keys for the widget that has the keyboard where the menus have them as well: accepts the event if it
/// offers one of them, without modifiers. To be called first in `event`.
inline bool keepKeys(QEvent& event, std::initializer_list<int> keys) {
    if (event.type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool kept = key.modifiers() == Qt::NoModifier && std::ranges::find(keys, key.key()) != keys.end();
    if (kept) {
        event.accept();
    }
    return kept;
}

inline bool isHistoryKey(const QKeyEvent& key) {
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

/// Leaves keys to the menus that a text would take for itself on some desktops: Ctrl+D and Ctrl+E. To be
/// called first in `event`.
inline bool leaveKeys(QEvent& event) {
    if (event.type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool left =
        key.modifiers() == Qt::ControlModifier && (key.key() == Qt::Key_D || key.key() == Qt::Key_E);
    if (left) {
        event.ignore();
    }
    return left;
}

} // namespace tessaly
