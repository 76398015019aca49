#include "chrome/qt/About.h"

#include "chrome/LinkAddress.h"
#include "chrome/ProductInfo.h"
#include "chrome/qt/ProgramIcon.h"
#include "chrome/qt/WebLabel.h"
#include "foundation/qt/ToQString.h"

#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessaly {
namespace {

constexpr int space = 8;
constexpr int iconSize = 64;
constexpr int textWidth = 320;

QLabel* centred(QLabel* label) {
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QLabel* nameLabel() {
    auto* const label = centred(new QLabel{toQString(product::name)});
    QFont large = label->font();
    large.setPointSizeF(QFontInfo{large}.pointSizeF() * 1.6);
    large.setBold(true);
    label->setFont(large);
    return label;
}

QLabel* purposeLabel() {
    auto* const label = centred(new QLabel{toQString(product::purpose)});
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    return label;
}

} // namespace

About::About(QWidget* mainWindow) : QDialog{mainWindow} {
    setWindowTitle(tr("About %1").arg(toQString(product::name)));
    setWindowModality(Qt::WindowModal);

    auto* const icon = centred(new QLabel);
    icon->setPixmap(programIcon().pixmap({iconSize, iconSize}, devicePixelRatioF()));
    auto* const close = new QPushButton{tr("&Close")};
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(3 * space, 3 * space, 3 * space, 2 * space);
    column->setSpacing(space);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(icon);
    column->addWidget(nameLabel());
    column->addWidget(centred(new QLabel{tr("Version %1").arg(toQString(product::version()))}));
    column->addWidget(purposeLabel());
    if (!product::homepage().empty()) {
        auto* const link = new WebLabel{toQString(LinkAddress::labelText(product::homepage()))};
        column->addWidget(link, 0, Qt::AlignHCenter);
    }
    column->addSpacing(space);
    column->addWidget(close, 0, Qt::AlignHCenter);
    close->setFocus();
}

} // namespace tessaly
