// The live preview in the real window on a display: how soon its first picture comes, and how well it follows
// a marker that is dragged at 120 moves a second. Prints benchmark, statistic and figure, in seconds.

#include "PictureWatch.h"
#include "app/WiredWindow.h"
#include "canvas/qt/CanvasView.h"
#include "chrome/qt/MainTabView.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/AfterFirstPaint.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tessaly {
namespace {

using namespace std::chrono_literals;
using Clock = PictureWatch::Clock;

double seconds(Clock::duration time) {
    return std::chrono::duration<double>{time}.count();
}

void print(const char* statistic, double figure) {
    std::printf("preview\t%s\t%.6f\n", statistic, figure);
}

void mouse(CanvasView& canvas, QEvent::Type type, QPointF at) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event{type, at, canvas.mapToGlobal(at), button, held, Qt::NoModifier};
    QApplication::sendEvent(&canvas, &event);
}

// Turns the event loop for that long, or until the picture is another one.
void wait(PictureWatch& watch, Clock::duration most, bool forPicture = false) {
    const Clock::time_point end = Clock::now() + most;
    const std::size_t before = watch.pictures().size();
    while (Clock::now() < end && !(forPicture && watch.pictures().size() > before)) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void measureFirstPicture(MainWindow& window, PictureWatch& watch) {
    wait(watch, 500ms);
    const Clock::time_point click = Clock::now();
    window.mainTabView().setSelectIndex(2);
    watch.start();
    wait(watch, 20s, true); // the blank area
    wait(watch, 20s, true);
    print("firstPicture", seconds(watch.pictures().back() - click));
}

void measureDrag(CanvasView& canvas, PictureWatch& watch) {
    constexpr auto interval = std::chrono::duration_cast<Clock::duration>(1s) / 120;
    constexpr int moves = 600;
    wait(watch, 1s);
    const QPointF marker = canvas.accessibleItemRect(canvas.currentAccessibleItem()).center();
    std::vector<double> steps;
    mouse(canvas, QEvent::MouseButtonPress, marker);
    watch.start();
    const Clock::time_point start = Clock::now();
    for (int i = 1; i <= moves; ++i) {
        const Clock::time_point due = start + i * interval;
        wait(watch, due - Clock::now());
        mouse(canvas, QEvent::MouseMove, marker - QPointF{std::abs(i * 3 % 1000 - 500.0), 0});
        canvas.repaint();
        steps.push_back(seconds(Clock::now() - due)); // what the engine held up included
    }
    const std::vector<Clock::time_point>& pictures = watch.pictures();
    mouse(canvas, QEvent::MouseButtonRelease, marker);
    Clock::duration longest{};
    for (std::size_t i = 1; i < pictures.size(); ++i) {
        longest = std::max(longest, pictures[i] - pictures[i - 1]);
    }
    std::sort(steps.begin(), steps.end());
    print("betweenPictures", seconds(interval * moves) / static_cast<double>(pictures.size()));
    print("longestGap", seconds(longest));
    print("dragStep95", steps[steps.size() * 95 / 100]);
}

} // namespace
} // namespace tessaly

int main(int argc, char** argv) {
    using namespace tessaly;
    const QApplication application{argc, argv};
    const QTemporaryDir folder;
    WiredWindow wired{folder.path().toStdString(), folder.path().toStdString()};
    MainWindow& window = wired.mainWindow();
    window.show();
    PictureWatch watch{window, window.webPreviewView()};
    measureFirstPicture(window, watch);
    measureDrag(window.canvasView(), watch);
    return 0;
}
