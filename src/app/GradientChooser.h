#pragma once

#include "document/Incoming.h"

#include <QDialog>
#include <vector>

class QAbstractItemModel;
class QListView;
class QPushButton;

namespace tessaly {

/// Lets the user choose among gradients that came in: thumbnails with names, and what was changed of each.
/// Deletes itself when closed.
class GradientChooser : public QDialog {
    Q_OBJECT

  public:
    GradientChooser(const Incoming& incoming, QWidget* parent);

  Q_SIGNALS:
    void editThis(const FoundGradient& found);
    void addToPresets(const std::vector<Gradient>& gradients);

  private:
    std::vector<int> chosenRows() const;
    void selectionChanged();
    void edit();
    void add();

    std::vector<FoundGradient> gradients_;
    QListView* list_;
    QPushButton* edit_;
    QPushButton* add_;
};

} // namespace tessaly
