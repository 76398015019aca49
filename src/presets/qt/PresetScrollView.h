#pragma once

#include <QScrollArea>

namespace tessaly {

/// The list of presets, scrolled within a frame of its own that is whole at every scale of the display. Where
/// it is wider than it must be, they keep to its middle.
class PresetScrollView : public QScrollArea {
    Q_OBJECT

  public:
    explicit PresetScrollView(QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void paintFrame();
};

} // namespace tessaly
