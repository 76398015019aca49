#pragma once

#include "exchange/Reading.h"

#include <QAbstractListModel>
#include <span>

namespace tessaly {

/// Gradients that came in, as the rows of a list. Their thumbnails are drawn when they are looked at.
class FoundGradientModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// The gradients must outlive the model.
    FoundGradientModel(std::span<const FoundGradient> gradients, QObject* parent)
        : QAbstractListModel{parent}, gradients_{gradients} {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::span<const FoundGradient> gradients_;
};

} // namespace tessaly
