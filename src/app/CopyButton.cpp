#include "app/CopyButton.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <algorithm>

namespace tessaly {

CopyButton::CopyButton(QWidget* parent) : QPushButton{parent} {
    const QString invitation = tr("Cop&y");
    const QString done = tr("Copied \u2713");
    setText(done);
    const int widest = sizeHint().width();
    setText(invitation);
    setFixedWidth(std::max(widest, sizeHint().width()));
    setToolTip(tr("Copy the whole text shown below"));
    constexpr int shownFor = 1'500; // milliseconds
    confirmation_.setInterval(shownFor);
    confirmation_.setSingleShot(true);
    connect(&confirmation_, &QTimer::timeout, this, [this, invitation] { setText(invitation); });
}

void CopyButton::copy(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    setText(tr("Copied \u2713"));
    setShortcut(QKeySequence{Qt::ALT | Qt::Key_Y}); // the confirmation has no letter of its own
    confirmation_.start();
}

} // namespace tessaly
