#include "foundation/qt/AfterFirstPaint.h"

#include <QEvent>
#include <QWidget>
#include <utility>

namespace tessaly {
namespace {

class PaintWatch : public QObject {
  public:
    PaintWatch(QWidget& widget, std::function<void()> task) : QObject{&widget}, task_{std::move(task)} {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            startTimer(0); // by then the picture is with the display
        }
        return false;
    }

  protected:
    void timerEvent(QTimerEvent* event) override {
        killTimer(event->timerId());
        task_();
        deleteLater();
    }

  private:
    std::function<void()> task_;
};

} // namespace

void afterFirstPaint(QWidget& widget, std::function<void()> task) {
    new PaintWatch{widget, std::move(task)}; // the widget's child
}

} // namespace tessaly
