#include "app/CopyButton.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <algorithm>

namespace tessaly {

QString CopyButton::confirmation() {
    return tr("Copied \u2713");
}

CopyButton::CopyButton(QWidget* parent) : QPushButton{parent} {
    const QString invitation = tr("Cop&y");
    setText(confirmation());
    const int widest = sizeHint().width();
    setText(invitation);
    setFixedWidth(std::max(widest, sizeHint().width()));
    setToolTip(tr("Copy the whole text shown below"));
    constexpr int shownFor = 1'500; // milliseconds
    shown_.setInterval(shownFor);
    shown_.setSingleShot(true);
    connect(&shown_, &QTimer::timeout, this, [this, invitation] { setText(invitation); });
}

void CopyButton::copy(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    setText(confirmation());
    setShortcut(QKeySequence{Qt::ALT | Qt::Key_Y}); // the confirmation has no letter of its own
    shown_.start();
}

} // namespace tessaly
