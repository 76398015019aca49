#include "app/PictureSizeDialog.h"

#include "raster/GradientPicture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <array>

namespace tessaly {
namespace {

constexpr int margin = 16;
constexpr int spacing = 8;

constexpr std::array<QSize, 3> usualSizes{PictureSizeDialog::proposed, QSize{1200, 630}, QSize{512, 512}};

QSpinBox* sideField() {
    auto* const field = new QSpinBox;
    field->setRange(1, GradientPicture::largestSide);
    field->setSuffix(PictureSizeDialog::tr(" px"));
    field->setAccelerated(true);
    return field;
}

} // namespace

PictureSizeDialog::PictureSizeDialog(QSize size, QWidget* parent)
    : QDialog{parent}, usual_{new QComboBox}, width_{sideField()}, height_{sideField()} {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Export Picture"));
    for (const QSize usual : usualSizes) {
        usual_->addItem(tr("%1 × %2").arg(usual.width()).arg(usual.height()), usual);
    }
    usual_->addItem(tr("Other"));
    take(size);
    connect(usual_, &QComboBox::activated, this, [this] {
        if (const QSize usual = usual_->currentData().toSize(); usual.isValid()) {
            take(usual);
        } else {
            width_->setFocus();
        }
    });
    for (QSpinBox* const side : {width_, height_}) {
        connect(side, &QSpinBox::valueChanged, this, &PictureSizeDialog::showUsual);
    }

    auto* const buttons = new QDialogButtonBox{QDialogButtonBox::Cancel};
    auto* const go = buttons->addButton(tr("&Export..."), QDialogButtonBox::AcceptRole);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        Q_EMIT chosen(pictureSize());
        accept();
    });
    auto* const layout = new QFormLayout{this};
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    layout->addRow(tr("&Size"), usual_);
    layout->addRow(tr("&Width"), width_);
    layout->addRow(tr("&Height"), height_);
    layout->addRow(buttons);
    go->setDefault(true); // once it is in the dialog
}

QSize PictureSizeDialog::pictureSize() const {
    return {width_->value(), height_->value()};
}

void PictureSizeDialog::take(QSize size) {
    width_->setValue(size.width());
    height_->setValue(size.height());
    showUsual();
}

void PictureSizeDialog::showUsual() {
    const int usual = usual_->findData(pictureSize());
    usual_->setCurrentIndex(usual < 0 ? usual_->count() - 1 : usual);
}

} // namespace tessaly
