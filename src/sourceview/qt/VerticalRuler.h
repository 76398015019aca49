#pragma once

#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/RulerMarker.h"

#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

namespace tessaly {

/// A strip at the left of a scroll view that describes a client, usually the text in it. It takes the width
/// that it requires whenever its rule thickness is set.
class VerticalRuler : public QWidget {
    Q_OBJECT

  public:
    using MarkerPointer = std::shared_ptr<RulerMarker>;

    explicit VerticalRuler(CustomTextView* scrollView) : QWidget{scrollView}, scrollView_{scrollView} {}

    /// Becomes the ruler of its scroll view.
    void install() { setRuleThickness(requiredThickness()); }

    CustomTextView* scrollView() const { return scrollView_; }

    QWidget* clientView() const { return clientView_.data(); }
    virtual void setClientView(QWidget* client) { clientView_ = client; }

    /// In points.
    double ruleThickness() const { return ruleThickness_; }
    virtual double requiredThickness() const = 0;
    virtual void setRuleThickness(double thickness);

    /// The markers at a location along the ruler, not those that a kind of ruler places itself.
    const std::vector<MarkerPointer>& markers() const { return markers_; }
    virtual void setMarkers(const std::vector<MarkerPointer>& markers);
    virtual void addMarker(const MarkerPointer& marker);
    virtual void removeMarker(const MarkerPointer& marker);

  protected:
    /// Draws the ruler, and the markers over it.
    void paintEvent(QPaintEvent* event) override;
    virtual void drawHashMarksAndLabelsInRect(QPainter& painter) const = 0;

  private:
    void drawMarkers(QPainter& painter) const;

    CustomTextView* scrollView_;
    QPointer<QWidget> clientView_;
    double ruleThickness_ = 0.0;
    std::vector<MarkerPointer> markers_;
};

} // namespace tessaly
