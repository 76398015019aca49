#pragma once

#include "canvas/StopControls.h"

#include <QWidget>
#include <array>
#include <string>

class QGridLayout;

namespace tessaly {

class ColorPickerImageView;
class FieldEdit;
class NumberFieldEdit;
class TitledComboBox;
class ValueStepper;

/// The controls under the canvas, in one aligned grid: the eight values of the selected stop, its colour
/// well, and the two lists for the whole gradient.
class StopControlPanel : public QWidget {
    Q_OBJECT

  public:
    explicit StopControlPanel(QWidget* parent = nullptr);

    /// For the rules that work with the controls.
    StopControlSet controlSet() const;

    /// Of the grid that the controls stand in: fields, lists and buttons are as high.
    int rowHeight() const;

    /// Tells the rules from now on what the user does.
    void connectTo(StopControls& rules);

  Q_SIGNALS:
    /// The user typed a colour for the selected stop.
    void colorTyped(const std::string& text);

  private:
    struct Pair {
        NumberFieldEdit* field = nullptr;
        ValueStepper* stepper = nullptr;
    };

    void addPair(QGridLayout& grid, const StopValueTraits& traits, int row, int column);
    void addLists(QGridLayout& grid);

    std::array<Pair, stopValues.size()> pairs_;
    ColorPickerImageView* selectedColor_;
    FieldEdit* hexadecimal_;
    TitledComboBox* selectedOrientationComboBox_;
    TitledComboBox* selectedColorFormatComboBox_;
};

} // namespace tessaly
