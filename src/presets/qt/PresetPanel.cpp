#include "presets/qt/PresetPanel.h"

#include "presets/PresetGallery.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "presets/qt/PresetScrollView.h"
#include "presets/qt/QuietLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace tessaly {
namespace {

constexpr int spacing = 8;
constexpr int margin = 16;
constexpr int leastHeight = 152; // of the scroll view: two rows of thumbnails and the start of a third

// The container with a scroller beside it.
int scrollViewWidth(const QScrollArea& view) {
    constexpr int containerWidth = static_cast<int>(PresetSlotGeometry::containerWidth);
    const int scroller = view.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &view);
    return containerWidth + 2 * view.frameWidth() + scroller;
}

} // namespace

PresetPanel::PresetPanel(QWidget* parent)
    : QWidget{parent},
      addButton_{new QPushButton{tr("A&dd Preset")}},
      presetGradienContainerScrollView_{new PresetScrollView},
      presetGradienContainerView_{new PresetGradienContainerView},
      noPresets_{new QuietLabel{tr("Keep a gradient with Add Preset"),
                                presetGradienContainerScrollView_->viewport()}} {
    addButton_->setObjectName(QStringLiteral("addPreset"));
    presetGradienContainerView_->setObjectName(QStringLiteral("presets"));
    addButton_->setAccessibleName(tr("Add Preset"));
    addButton_->setToolTip(tr("Keep the gradient being edited"));
    QScrollArea& scrollView = *presetGradienContainerScrollView_;
    scrollView.setWidget(presetGradienContainerView_);
    scrollView.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollView.setMinimumWidth(scrollViewWidth(scrollView));
    scrollView.setMinimumHeight(leastHeight);
    scrollView.setFocusPolicy(Qt::NoFocus);
    connect(presetGradienContainerView_, &PresetGradienContainerView::toBeSeen, this,
            [&scrollView](const QRect& place) {
                scrollView.ensureVisible(place.center().x(), place.center().y(), 0, place.height() / 2 + 8);
            });
    auto* const middle = new QVBoxLayout{scrollView.viewport()};
    middle->setContentsMargins(margin, margin, margin, margin);
    middle->addWidget(noPresets_);
    noPresets_->raise();

    auto* const label = new QLabel{tr("Prese&ts")};
    label->setBuddy(presetGradienContainerView_);
    auto* const header = new QHBoxLayout;
    header->addWidget(label);
    header->addStretch();
    header->addWidget(addButton_);
    auto* const layout = new QVBoxLayout{this};
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    layout->addLayout(header);
    layout->addWidget(presetGradienContainerScrollView_);
}

void PresetPanel::connectTo(PresetGallery& gallery) {
    presetGradienContainerView_->setGallery(&gallery);
    connect(addButton_, &QPushButton::clicked, this, [&gallery] { gallery.addGradientIntoPreset(); });
}

double PresetPanel::scrollViewHeight() const {
    return presetGradienContainerScrollView_->height();
}

void PresetPanel::setContainerSize(Size size) {
    presetGradienContainerView_->resize(static_cast<int>(size.width), static_cast<int>(size.height));
}

void PresetPanel::showThumbnail(std::size_t position) {
    presetGradienContainerView_->moveTo(position);
}

void PresetPanel::thumbnailsChanged() {
    presetGradienContainerView_->thumbnailsChanged();
    noPresets_->setVisible(presetGradienContainerView_->accessibleItemCount() == 0);
}

} // namespace tessaly
