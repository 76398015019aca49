#include "app/GradientChooser.h"

#include "app/FoundGradientModel.h"
#include "foundation/qt/ToQString.h"
#include "presets/PresetSlotGeometry.h"

#include <QDialogButtonBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tessaly {
namespace {

constexpr int margin = 16;
constexpr int spacing = 8;
constexpr QSize startSize{480, 480};

} // namespace

GradientChooser::GradientChooser(const Incoming& incoming, QWidget* parent)
    : QDialog{parent},
      gradients_{incoming.gradients},
      list_{new QListView},
      edit_{new QPushButton{tr("&Edit This")}},
      add_{new QPushButton{tr("&Add to Presets")}} {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Choose Gradients"));
    list_->setModel(new FoundGradientModel{gradients_, list_});
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setUniformItemSizes(true); // there may be thousands
    constexpr auto thumbnail = static_cast<int>(PresetSlotGeometry::thumbnailSize);
    list_->setIconSize({thumbnail, thumbnail});
    list_->setSpacing(2);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setAccessibleName(tr("Gradients found"));
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &GradientChooser::selectionChanged);
    connect(list_, &QListView::doubleClicked, this, &GradientChooser::edit);
    connect(edit_, &QPushButton::clicked, this, &GradientChooser::edit);
    connect(add_, &QPushButton::clicked, this, &GradientChooser::add);

    auto* const buttons = new QDialogButtonBox{QDialogButtonBox::Cancel};
    buttons->addButton(edit_, QDialogButtonBox::AcceptRole);
    buttons->addButton(add_, QDialogButtonBox::ActionRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    edit_->setDefault(true);
    auto* const layout = new QVBoxLayout{this};
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    std::string told =
        tr("%n &gradients were found", nullptr, static_cast<int>(gradients_.size())).toStdString();
    addPhrase(told, incoming.leftOut);
    auto* const label = new QLabel{toQString(told) + u':'};
    label->setWordWrap(true);
    label->setBuddy(list_);
    layout->addWidget(label);
    layout->addWidget(list_);
    layout->addWidget(buttons);
    resize(startSize);
    list_->setCurrentIndex(list_->model()->index(0, 0));
    list_->setFocus();
}

std::vector<int> GradientChooser::chosenRows() const {
    const QModelIndexList chosen = list_->selectionModel()->selectedIndexes();
    std::vector<int> rows(static_cast<std::size_t>(chosen.size()));
    std::ranges::transform(chosen, rows.begin(), &QModelIndex::row);
    std::ranges::sort(rows);
    return rows;
}

void GradientChooser::selectionChanged() {
    const auto chosen = chosenRows().size();
    edit_->setEnabled(chosen == 1);
    add_->setEnabled(chosen > 0);
}

void GradientChooser::edit() {
    if (const std::vector<int> rows = chosenRows(); rows.size() == 1) {
        Q_EMIT editThis(gradients_[static_cast<std::size_t>(rows.front())]);
        accept();
    }
}

void GradientChooser::add() {
    const std::vector<int> rows = chosenRows();
    std::vector<Gradient> chosen(rows.size());
    std::ranges::transform(rows, chosen.begin(),
                           [this](int row) { return gradients_[static_cast<std::size_t>(row)].gradient; });
    Q_EMIT addToPresets(chosen);
    accept();
}

} // namespace tessaly
