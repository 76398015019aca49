#pragma once

#include <QLabel>

namespace tessaly {

/// A line in the middle of a list that has nothing to show: says what would be there, wrapped, in the colour
/// of placeholders as far as that can be read. The mouse goes through it.
class QuietLabel : public QLabel {
    Q_OBJECT

  public:
    explicit QuietLabel(const QString& text, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaly
