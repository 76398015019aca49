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

    /// Shows a gallery and lets the button add to it, until the gallery is taken away again before it ends.
    void connectTo(PresetGallery& gallery);
    void disconnectFromGallery();

    double scrollViewHeight() const override;
    void setContainerSize(Size size) override;
    void thumbnailsChanged() override;

  private:
    QPushButton* addButton_;
    QMetaObject::Connection adding_;
    QScrollArea* presetGradienContainerScrollView_;
    PresetGradienContainerView* presetGradienContainerView_;
};

} // namespace tessaly
