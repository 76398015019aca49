#pragma once

#include <QScrollArea>

namespace tessaly {

/// The list of presets, scrolled within a frame of its own that is whole at every scale of the display.
class PresetScrollView : public QScrollArea {
    Q_OBJECT

  public:
    explicit PresetScrollView(QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;

  private:
    void paintFrame();
};

} // namespace tessaly
