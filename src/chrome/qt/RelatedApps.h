#pragma once

#include "foundation/NotificationCenter.h"

#include <QDialog>

class QStackedWidget;

namespace tessaly {

/// A sheet that names free tools, in two tabs of its own strip; each has a button that opens its page in the
/// default browser. Its strip posts the same notification as that of the main window, from its own object.
class RelatedApps : public QDialog {
    Q_OBJECT

  public:
    explicit RelatedApps(QWidget* mainWindow = nullptr);

  private:
    QStackedWidget* pages_;
    NotificationCenter::Observation tabChange_;
};

} // namespace tessaly
