// The live preview in the real window on a display: how soon its first picture comes, and how well it follows
// a marker that is dragged at 120 moves a second. Prints benchmark, statistic and figure, in seconds.

#include "PictureWatch.h"
#include "app/MainWindow.h"
#include "app/Tessaly.h"
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
#include <functional>

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

// Turns the event loop for that long, or until the condition holds; whether it does.
bool wait(
    Clock::duration most, const std::function<bool()>& condition = [] { return false; }) {
    const Clock::time_point end = Clock::now() + most;
    while (Clock::now() < end) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (condition()) {
            return true;
        }
    }
    return false;
}

bool measureFirstPicture(const MainWindow& window, PictureWatch& watch) {
    wait(500ms);
    const Clock::time_point click = Clock::now();
    window.views().tabs->setSelectIndex(2);
    const bool isShown = wait(20s, [&] { return watch.startsBlack(); });
    print("firstPicture", seconds(Clock::now() - click));
    return isShown;
}

void measureDrag(CanvasView& canvas, PictureWatch& watch) {
    constexpr auto interval = std::chrono::duration_cast<Clock::duration>(1s) / 120;
    constexpr int moves = 600;
    wait(1s);
    const QPointF marker = canvas.accessibleItemRect(canvas.currentAccessibleItem()).center();
    std::vector<double> steps;
    mouse(canvas, QEvent::MouseButtonPress, marker);
    watch.start();
    const Clock::time_point start = Clock::now();
    for (int i = 1; i <= moves; ++i) {
        const Clock::time_point due = start + i * interval;
        wait(due - Clock::now());
        mouse(canvas, QEvent::MouseMove, marker - QPointF{std::abs(i * 3 % 1000 - 500.0), 0});
        canvas.repaint();
        steps.push_back(seconds(Clock::now() - due)); // what the engine held up included
    }
    mouse(canvas, QEvent::MouseButtonRelease, marker);
    std::vector<Clock::time_point> pictures = watch.pictures();
    const auto count = static_cast<double>(pictures.size());
    pictures.insert(pictures.begin(), start);
    pictures.push_back(Clock::now());
    Clock::duration longest{};
    for (std::size_t i = 1; i < pictures.size(); ++i) {
        longest = std::max(longest, pictures[i] - pictures[i - 1]);
    }
    std::sort(steps.begin(), steps.end());
    print("betweenPictures", seconds(interval * moves) / std::max(count, 1.0));
    print("longestGap", seconds(longest));
    print("dragStep95", steps[steps.size() * 95 / 100]);
}

} // namespace
} // namespace tessaly

int main(int argc, char** argv) {
    using namespace tessaly;
    const QApplication application{argc, argv};
    const QTemporaryDir folder;
    Tessaly program{folder.path().toStdString(), folder.path().toStdString()};
    MainWindow& window = program.mainWindow();
    window.show();
    PictureWatch watch{window, *window.views().preview};
    if (!measureFirstPicture(window, watch)) {
        return 1;
    }
    measureDrag(*window.views().canvas, watch);
    return 0;
}
