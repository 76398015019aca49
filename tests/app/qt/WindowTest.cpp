// The whole window with a real browser engine, on a display.

#include "app/MainWindow.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "chrome/qt/MainTabView.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/Utf8.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/SourceView.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <QAccessible>
#include <QScreen>
#include <QStackedWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    std::string stylesheet() const { return toUtf8(views.stylesheet->textView().text()); }
    std::string stylesheetFile() const { return contentsOf(temporary.path / "WebFolder0" / "styles.css"); }

    void dragWhiteMarker(int dx) {
        CanvasView& canvas = *views.canvas;
        const QPoint marker = canvas.accessibleItemRect(canvas.currentAccessibleItem()).center();
        QTest::mousePress(&canvas, Qt::LeftButton, {}, marker);
        QTest::mouseMove(&canvas, marker + QPoint{dx, 0});
        QTest::mouseRelease(&canvas, Qt::LeftButton, {}, marker + QPoint{dx, 0});
    }

    const QWidget* shownPage() { return program.mainWindow().shownPage(); }

    // The level of grey that the screen shows at that share of the width of the preview's box, or below it.
    int previewLevel(double share, int y = 100) const {
        const WebPreviewView& preview = *views.preview;
        constexpr int bodyMargin = 8;
        const int x = bodyMargin + static_cast<int>((preview.width() - 2 * bodyMargin) * share);
        const QPoint place = preview.mapTo(&window, QPoint{x, y});
        return window.screen()->grabWindow(window.winId()).toImage().pixelColor(place).green();
    }

    bool previewComesToShow(double share, int level) const {
        return eventually([&] { return std::abs(previewLevel(share) - level) <= 4; });
    }

    const LogCapture log;
    const TemporaryFolder temporary;
    Tessaly program{temporary.path, temporary.path};
    MainWindow& window = program.mainWindow();
    const MainWindow::Views& views = window.views();
};

TEST_F(WindowTest, aDraggedMarkerReachesTextFileAndPreview) {
    EXPECT_EQ(shownPage(), views.stylesheet);
    dragWhiteMarker(-292);
    EXPECT_NE(stylesheet().find("#ffffff 50%);"), std::string::npos) << stylesheet();
    EXPECT_EQ(stylesheetFile(), stylesheet());

    window.setPalette(QPalette{Qt::black});
    const WId windowId = window.winId();
    views.tabs->setSelectIndex(2);
    EXPECT_EQ(shownPage(), views.preview);
    EXPECT_TRUE(previewComesToShow(0.25, 127));
    EXPECT_EQ(previewLevel(0.5, 270), 255) << "a page's white, on a dark desktop too";
    for (const int pause : {0, 5, 10, 15, 20, 25, 30, 40}) { // mostly shorter than the page takes to load
        dragWhiteMarker(-146);
        QTest::qWait(pause);
        dragWhiteMarker(438);
        EXPECT_TRUE(previewComesToShow(0.25, 63)) << previewLevel(0.25);
    }
    EXPECT_EQ(window.winId(), windowId) << "the window was made anew under the user's eyes";
}

TEST_F(WindowTest, listensToItsOwnTabsAndKeepsWhatTheUserTyped) {
    const int stranger = 0;
    NotificationCenter::defaultCenter().post({"SelectIndexChanged", &stranger, {{"Index", std::int64_t{1}}}});
    EXPECT_EQ(shownPage(), views.stylesheet);

    const std::string before = stylesheet();
    auto& view = views.stylesheet->textView();
    view.setFocus();
    QTest::keyClicks(&view, QStringLiteral("a"));
    QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(&view, QStringLiteral("z"));
    dragWhiteMarker(-292);
    EXPECT_NE(stylesheet().find("#ffffff 50%);\n\tbackground: -moz-"), std::string::npos);
    dragWhiteMarker(292);
    EXPECT_EQ(stylesheet(), "a" + before + "z");
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_Delete);
    dragWhiteMarker(-292);
    EXPECT_EQ(stylesheet().rfind("\tbackground: #000000;\n", 0), 0U) << "what was deleted comes back";
    EXPECT_EQ(stylesheetFile(), stylesheet());
}

void collectNames(QAccessibleInterface* parent, QStringList& names) {
    for (int i = 0; i < parent->childCount(); ++i) {
        names << parent->child(i)->text(QAccessible::Name);
        collectNames(parent->child(i), names);
    }
}

TEST_F(WindowTest, assistiveToolsFindEveryControlByItsName) {
    QStringList names;
    collectNames(QAccessible::queryAccessibleInterface(&window), names);
    const auto expected =
        "Gradient canvas|Stop 1|Stop 2|Red|Red stepper|Green|Green stepper|Blue|Blue stepper|Hue|Hue stepper|"
        "Saturation|Saturation stepper|Lightness|Lightness stepper|Position|Position stepper|Opacity|"
        "Opacity stepper|Stop color|Orientation|Color notation|Presets|Add Preset|CSS 3|HTML|Web Preview|"
        "CSS code|HTML code|Web preview|About|Homepage|Related Applications|Copy";
    for (const QString& name : QString::fromUtf8(expected).split(u'|')) {
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
}

} // namespace
} // namespace tessaly
