#pragma once

#include "canvas/ControlInterfaces.h"
#include "foundation/qt/ToQString.h"

#include <QComboBox>
#include <string_view>

namespace tessaly {

/// A list of fixed titles. `activated` tells what the user chose.
class TitledComboBox : public QComboBox, public ComboBox {
    Q_OBJECT

  public:
    explicit TitledComboBox(QWidget* parent = nullptr);

    void addTitle(std::string_view title) { addItem(toQString(title)); }

    std::int64_t indexOfSelectedItem() const override { return currentIndex(); }
    void selectItemAtIndex(std::int64_t index) override { setCurrentIndex(static_cast<int>(index)); }
};

} // namespace tessaly
