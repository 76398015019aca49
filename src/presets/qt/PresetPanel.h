#pragma once

#include "presets/PresetGalleryView.h"

#include <QWidget>

class QPushButton;
class QScrollArea;

namespace tessaly {

class PresetGallery;
class PresetGradienContainerView;

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
    QScrollArea* presetGradienContainerScrollView_;
    PresetGradienContainerView* presetGradienContainerView_;
};

} // namespace tessaly
