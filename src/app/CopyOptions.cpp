#include "app/CopyOptions.h"

#include <QMenu>

namespace tessaly {

CopyOptions::CopyOptions(QWidget* parent)
    : QPushButton{parent},
      forms_{new QMenu{this}},
      wholeText_{forms_->addAction(tr("&Whole Text"))},
      standardDeclaration_{forms_->addAction(tr("Standard &Declaration"))},
      standardValue_{forms_->addAction(tr("Standard &Value"))} {
    constexpr int arrowWidth = 24;
    setAccessibleName(tr("Copy options"));
    setToolTip(tr("Copy in another form"));
    setFixedWidth(arrowWidth);
    setMenu(forms_);
    // An item that assistive tools press leaves its menu open, and beneath one no command acts.
    connect(forms_, &QMenu::triggered, forms_, &QMenu::hide);
}

} // namespace tessaly
