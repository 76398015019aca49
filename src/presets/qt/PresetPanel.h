#pragma once

#include "presets/PresetGalleryView.h"

#include <QWidget>

class QPushButton;

namespace tessaly {

class PresetGallery;
class PresetGradienContainerView;
class PresetScrollView;
class QuietLabel;

/// The presets beside the canvas: their scrolling gallery, and the button that adds one.
class PresetPanel : public QWidget, public PresetGalleryView {
    Q_OBJECT

  public:
    explicit PresetPanel(QWidget* parent = nullptr);

    /// Shows a gallery, which outlives the panel, and lets the button add to it.
    void connectTo(PresetGallery& gallery);

    double scrollViewHeight() const override;
    void setContainerSize(Size size) override;
    void thumbnailsChanged() override;
    void showThumbnail(std::size_t position) override;

  private:
    QPushButton* addButton_;
    PresetScrollView* presetGradienContainerScrollView_;
    PresetGradienContainerView* presetGradienContainerView_;
    QuietLabel* noPresets_; ///< shown in place of them
};

} // namespace tessaly
