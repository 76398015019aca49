#pragma once

#include <QDialog>

namespace tessaly {

/// The About sheet: icon, name, version, what the program is for, and a link to its homepage. Shown with
/// `open()`, and kept for the next showing.
class About : public QDialog {
    Q_OBJECT

  public:
    explicit About(QWidget* mainWindow = nullptr);
};

} // namespace tessaly
