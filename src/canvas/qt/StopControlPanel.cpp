#include "canvas/qt/StopControlPanel.h"

#include "canvas/qt/ColorPickerImageView.h"
#include "canvas/qt/FieldEdit.h"
#include "canvas/qt/NumberFieldEdit.h"
#include "canvas/qt/TitledComboBox.h"
#include "canvas/qt/ValueStepper.h"
#include "foundation/qt/ToQString.h"
#include "model/ColorFormat.h"
#include "model/Orientation.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace tessaly {
namespace {

constexpr int spacing = 8;
constexpr int columnGap = 16;

/// Where a value stands in the grid, and the key that leads to it with Alt.
struct Cell {
    StopValue value;
    const char* label;
    const char* fieldName; ///< of the widgets, to look them up by
    const char* stepperName;
    int row;
    int block; ///< of columns: label, field, stepper, gap
};

constexpr std::array<Cell, stopValues.size()> cells{{
    {StopValue::Red, "&Red", "redTextField", "redStepper", 0, 0},
    {StopValue::Green, "Gree&n", "greenTextField", "greenStepper", 1, 0},
    {StopValue::Blue, "&Blue", "blueTextField", "blueStepper", 2, 0},
    {StopValue::Hue, "H&ue", "hueTextField", "hueStepper", 0, 1},
    {StopValue::Saturation, "&Saturation", "saturationTextField", "saturationStepper", 1, 1},
    {StopValue::Lightness, "&Lightness", "lightnessTextField", "lightnessStepper", 2, 1},
    {StopValue::Position, "&Position", "selectedPosTextField", "selectedPosStepper", 0, 2},
    {StopValue::Opacity, "Opa&city", "selectedOpacityTextField", "selectedOpacityStepper", 1, 2},
}};

constexpr int hexadecimalDigits = 8;
constexpr int columnsPerBlock = 4;
constexpr int lastBlock = 3;

QLabel* labelFor(QWidget& buddy, const QString& text) {
    auto* const label = new QLabel{text};
    label->setBuddy(&buddy);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

StopControlPanel::StopControlPanel(QWidget* parent)
    : QWidget{parent},
      selectedColor_{new ColorPickerImageView},
      hexadecimal_{new FieldEdit{hexadecimalDigits}},
      selectedOrientationComboBox_{new TitledComboBox},
      selectedColorFormatComboBox_{new TitledComboBox} {
    auto* const grid = new QGridLayout{this};
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(spacing);
    grid->setHorizontalSpacing(0);
    for (const Cell& cell : cells) {
        const int column = cell.block * columnsPerBlock;
        addPair(*grid, traitsOf(cell.value), cell.row, column + 1);
        const auto& [field, stepper] = pairs_[static_cast<std::size_t>(cell.value)];
        field->setObjectName(QLatin1StringView{cell.fieldName});
        stepper->setObjectName(QLatin1StringView{cell.stepperName});
        stepper->setToolTip(tr("Step it up or down; so do the keys Up and Down in the field"));
        grid->addWidget(labelFor(*field, tr(cell.label)), cell.row, column);
    }
    QStringList carrying;
    for (const colorFormat::Notation& notation : colorFormat::notations) {
        if (notation.carriesOpacity) {
            carrying += toQString(notation.title);
        }
    }
    pairs_[static_cast<std::size_t>(StopValue::Opacity)].field->setToolTip(
        tr("Carried by the notations %1").arg(carrying.join(tr(" and "))));
    addLists(*grid);
    const int height = rowHeight();
    for (QWidget* const control : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (qobject_cast<QLabel*>(control) == nullptr) {
            control->setFixedHeight(height);
        }
    }
    for (int block = 0; block < lastBlock; ++block) {
        grid->setColumnMinimumWidth(block * columnsPerBlock + columnsPerBlock - 1, columnGap);
    }
    grid->setColumnStretch(lastBlock * columnsPerBlock + 1, 1);
}

void StopControlPanel::addPair(QGridLayout& grid, const StopValueTraits& traits, int row, int column) {
    constexpr int integerDigits = 4;
    constexpr int decimalDigits = 5;
    auto& [field, stepper] = pairs_[static_cast<std::size_t>(traits.value)];
    field =
        new NumberFieldEdit{NumberFormatter{traits.value}, traits.decimal ? decimalDigits : integerDigits};
    field->setAccessibleName(toQString(traits.name));
    stepper = new ValueStepper{traits};
    stepper->setAccessibleName(tr("%1 stepper").arg(toQString(traits.name)));
    connect(field, &NumberFieldEdit::stepped, stepper, &ValueStepper::stepBy);
    connect(stepper, &ValueStepper::aboutToStep, field, &NumberFieldEdit::endEditing);
    auto* const pairLayout = new QHBoxLayout;
    pairLayout->setContentsMargins(spacing, 0, 0, 0);
    pairLayout->setSpacing(2);
    pairLayout->addWidget(field);
    pairLayout->addWidget(stepper);
    grid.addLayout(pairLayout, row, column);
}

void StopControlPanel::addLists(QGridLayout& grid) {
    selectedColor_->setAccessibleName(tr("Stop color"));
    selectedColor_->setToolTip(tr("Pick the color of the selected stop"));
    hexadecimal_->setObjectName(QStringLiteral("hexadecimalField"));
    hexadecimal_->setAccessibleName(tr("Hex"));
    hexadecimal_->setToolTip(tr("The color of the selected stop: type any CSS color"));
    connect(hexadecimal_, &FieldEdit::edited, this, [this] { Q_EMIT colorTyped(hexadecimal_->text()); });
    selectedOrientationComboBox_->setAccessibleName(tr("Orientation"));
    selectedColorFormatComboBox_->setAccessibleName(tr("Color notation"));
    for (const orientation::Item& item : orientation::items) {
        selectedOrientationComboBox_->addTitle(item.title);
    }
    for (const colorFormat::Notation& notation : colorFormat::notations) {
        selectedColorFormatComboBox_->addTitle(notation.title);
    }
    constexpr int stopBlock = 2 * columnsPerBlock;
    constexpr int listBlock = lastBlock * columnsPerBlock;
    const auto add = [&](QWidget& control, const QString& label, int row, int column) {
        auto* const cell = new QHBoxLayout;
        cell->setContentsMargins(spacing, 0, 0, 0);
        cell->addWidget(&control);
        grid.addWidget(labelFor(control, label), row, column);
        grid.addLayout(cell, row, column + 1);
    };
    add(*selectedColor_, tr("C&olor"), 2, stopBlock);
    add(*selectedOrientationComboBox_, tr("Or&ientation"), 0, listBlock);
    add(*selectedColorFormatComboBox_, tr("Not&ation"), 1, listBlock);
    add(*hexadecimal_, tr("He&x"), 2, listBlock);
}

int StopControlPanel::rowHeight() const {
    return std::max(hexadecimal_->sizeHint().height(), selectedOrientationComboBox_->sizeHint().height());
}

StopControlSet StopControlPanel::controlSet() const {
    StopControlSet set;
    for (std::size_t i = 0; i < pairs_.size(); ++i) {
        set.pairs[i] = {pairs_[i].field, pairs_[i].stepper};
    }
    set.selectedColor = selectedColor_;
    set.hexadecimal = hexadecimal_;
    set.selectedOrientationComboBox = selectedOrientationComboBox_;
    set.selectedColorFormatComboBox = selectedColorFormatComboBox_;
    return set;
}

void StopControlPanel::connectTo(StopControls& rules) {
    for (const StopValueTraits& traits : stopValues) {
        const auto& [field, stepper] = pairs_[static_cast<std::size_t>(traits.value)];
        const StopValue value = traits.value;
        connect(field, &NumberFieldEdit::edited, this,
                [&rules, value] { rules.updateTextFieldValue(value); });
        connect(stepper, &ValueStepper::steppedByUser, this,
                [&rules, value] { rules.updateStepperValue(value); });
    }
    connect(selectedColor_, &ColorPickerImageView::pickingBegun, this, [&rules] { rules.pickingBegun(); });
    connect(selectedColor_, &ColorPickerImageView::pickingGivenUp, this,
            [&rules] { rules.pickingGivenUp(); });
    connect(selectedOrientationComboBox_, &QComboBox::activated, this,
            [&rules] { rules.updateOrientationComboBoxValue(); });
    connect(selectedColorFormatComboBox_, &QComboBox::activated, this,
            [&rules] { rules.updateColorFormatComboBoxValue(); });
}

} // namespace tessaly
