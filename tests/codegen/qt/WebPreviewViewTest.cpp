// The preview with an engine that does as the test says.

#include "codegen/qt/WebPreviewView.h"

#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QApplication>
#include <QLabel>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr QColor dark{0x1e, 0x1e, 0x1e};

class WebPreviewViewTest : public testing::Test {
  protected:
    WebPreviewViewTest() {
        QPalette palette;
        palette.setColor(QPalette::Base, dark);
        view.setPalette(palette);
        view.resize(400, 300);
        view.loadFile("/folder/index.html");
    }

    QWidget* engine() const { return view.findChild<QWidget*>(QStringLiteral("engine")); }
    QStringList orders() const {
        return engine() == nullptr ? QStringList{} : engine()->property("orders").toStringList();
    }
    void enginePaints(int before = 0) { QMetaObject::invokeMethod(engine(), "paint", Q_ARG(int, before)); }
    void engineFinishes(bool sound, int before = 0) {
        QMetaObject::invokeMethod(engine(), "finish", Q_ARG(bool, sound), Q_ARG(int, before));
    }
    void engineEnds() {
        engine()->setProperty("orders", {});
        for (int i = 0; i < 2; ++i) { // as the real one does when its process cannot start
            QMetaObject::invokeMethod(engine(), "end");
        }
    }
    void showPage() {
        QApplication::processEvents();
        EXPECT_EQ(engine(), nullptr) << "nobody has looked yet";
        view.show();
        EXPECT_TRUE(isBlank());
        ASSERT_TRUE(eventually([&] { return !orders().isEmpty(); }));
        engineFinishes(true);
        EXPECT_TRUE(isBlank()) << "not yet painted";
        enginePaints();
        EXPECT_FALSE(cover().isVisible());
    }
    const QLabel& cover() const { return *view.findChild<QLabel*>(); }
    bool isBlank() {
        return cover().isVisible() && cover().text().isEmpty() &&
               view.grab().toImage().pixelColor(200, 150) == dark;
    }

    const LogCapture log;
    WebPreviewView view{QStringLiteral(TESSALY_FAKE_MODULES "/fake.so")};
};

TEST_F(WebPreviewViewTest, joinsChangesOnTheirWayAndKeepsThoseOfAHiddenViewForLater) {
    showPage();
    for (int i = 0; i < 3; ++i) {
        view.reload();
    }
    engineFinishes(true, 1); // told once more
    EXPECT_EQ(orders(), (QStringList{QStringLiteral("load index.html"), QStringLiteral("renew")}));
    engineFinishes(true);
    engineFinishes(true);
    view.hide();
    view.reload();
    EXPECT_EQ(orders().size(), 3);
    view.show();
    EXPECT_EQ(orders().size(), 4);
    enginePaints(1);
    EXPECT_TRUE(isBlank()) << "instead of the gradient from before";
    view.reload();
    engineFinishes(true);
    EXPECT_EQ(orders().size(), 5);
    enginePaints(1);
    EXPECT_FALSE(cover().isVisible()) << "although the next change is under way";
}

TEST_F(WebPreviewViewTest, loadsThePageWhenItCannotBeRenewedOrIsAnother) {
    showPage();
    view.reload();
    engineFinishes(false);
    EXPECT_EQ(orders().last(), QStringLiteral("load index.html"));
    engineFinishes(false);
    EXPECT_FALSE(cover().text().isEmpty());
    EXPECT_EQ(orders().size(), 3) << "the next change tries again";
    view.reload();
    EXPECT_EQ(orders().last(), QStringLiteral("load index.html"));
    view.loadFile("/other/page.html");
    EXPECT_EQ(orders().last(), QStringLiteral("load page.html"));
    engineFinishes(true, 1);
    view.reload();
    EXPECT_EQ(orders().size(), 5) << "told of the page before";
}

TEST_F(WebPreviewViewTest, startsAnEndedEngineAgainSomeTimesAndThenAtTheNextChange) {
    showPage();
    for (int i = 0; i < EngineRestarts::mostInARow; ++i) {
        engineEnds();
        EXPECT_TRUE(isBlank());
        EXPECT_TRUE(eventually([&] { return orders() == QStringList{QStringLiteral("load index.html")}; }));
    }
    engineEnds();
    view.hide();
    view.show();
    EXPECT_FALSE(cover().text().isEmpty()) << "to look again is no change";
    view.reload();
    EXPECT_TRUE(eventually([&] { return isBlank() && !orders().isEmpty(); }));
    engineFinishes(true);
    enginePaints();
    EXPECT_FALSE(cover().isVisible());
}

TEST(PreviewModule, isRefusedWhenOfAnotherVersion) {
    const LogCapture log;
    WebPreviewView view{QStringLiteral(TESSALY_FAKE_MODULES "/other-version.so")};
    view.loadFile("/folder/index.html");
    view.show();
    const QLabel& notice = *view.findChild<QLabel*>();
    const QString failure = QStringLiteral("other-version.so is not of this program's version");
    EXPECT_TRUE(eventually([&] { return notice.text().contains(failure); }));
    EXPECT_TRUE(log.messages.back().find(failure.toStdString()) != std::string::npos);
    view.reload();
}

} // namespace
} // namespace tessaly
