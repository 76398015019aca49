#include "app/CopyOptions.h"

#include "foundation/qt/CloseWhenTriggered.h"

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
    closeWhenTriggered(*forms_);
}

} // namespace tessaly
