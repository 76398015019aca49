// The preview with an engine that does as the test says.

#include "codegen/qt/WebPreviewView.h"

#include "support/Eventually.h"
#include "support/LogCapture.h"
#include "support/Palettes.h"
#include "support/TemporaryFolder.h"

#include <QApplication>
#include <QLabel>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class WebPreviewViewTest : public testing::Test {
  protected:
    WebPreviewViewTest() {
        view.setPalette(darkPalette());
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
        view.show();
        ASSERT_TRUE(eventually([&] { return !orders().isEmpty(); }));
        engineFinishes(true);
        enginePaints();
    }
    const QLabel& cover() const { return *view.findChild<QLabel*>(); }
    bool isBlank() {
        return cover().isVisible() && cover().text().isEmpty() &&
               view.grab().toImage().pixelColor(200, 150) == darkPalette().color(QPalette::Base);
    }

    const LogCapture log;
    WebPreviewView view{QStringLiteral(TESSALY_FAKE_MODULES "/fake.so")};
};

TEST_F(WebPreviewViewTest, startsWhenSeenAndStaysBlankUntilThePageIsPainted) {
    QApplication::processEvents();
    EXPECT_EQ(engine(), nullptr) << "nobody has looked yet";
    view.show();
    EXPECT_TRUE(isBlank());
    ASSERT_TRUE(eventually([&] { return !orders().isEmpty(); }));
    engineFinishes(true);
    EXPECT_TRUE(isBlank());
    enginePaints();
    EXPECT_FALSE(cover().isVisible());
}

TEST_F(WebPreviewViewTest, joinsChangesOnTheirWayAndKeepsThoseOfAHiddenViewForLater) {
    showPage();
    for (int i = 0; i < 3; ++i) {
        view.reload();
    }
    engineFinishes(true, 1); // told once more
    EXPECT_EQ(orders(), (QStringList{QStringLiteral("load index.html"), QStringLiteral("renew")}));
    engineFinishes(true);
    EXPECT_EQ(orders().size(), 3);
    engineFinishes(true);
    EXPECT_EQ(orders().size(), 3);

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
    engineFinishes(true);
    enginePaints();
    EXPECT_FALSE(cover().isVisible());
}

TEST_F(WebPreviewViewTest, startsAnEndedEngineAgainSomeTimesAndThenAtTheNextChange) {
    showPage();
    for (int i = 0; i < EngineRestarts::mostInARow; ++i) {
        engineEnds();
        EXPECT_TRUE(isBlank());
        EXPECT_TRUE(eventually([&] { return orders() == QStringList{QStringLiteral("load index.html")}; }));
        view.hide();
        view.show();
        EXPECT_EQ(orders().size(), 1);
    }
    engineEnds();
    EXPECT_FALSE(cover().text().isEmpty());
    view.hide();
    view.show();
    EXPECT_FALSE(cover().text().isEmpty()) << "to look again is no change";
    view.reload();
    EXPECT_TRUE(eventually([&] { return isBlank() && !orders().isEmpty(); }));
    engineFinishes(true);
    enginePaints();
    EXPECT_FALSE(cover().isVisible());
}

TEST(PreviewModule, saysWhatIsWrongWithItsFile) {
    const LogCapture log;
    const TemporaryFolder folder;
    std::ofstream{folder.path / "text.so"} << "no module";
    std::filesystem::create_symlink(TESSALY_FAKE_MODULES "/other-version.so", folder.path / "other.so");
    std::filesystem::create_symlink(TESSALY_FAKE_MODULES "/broken.so", folder.path / "broken.so");
    for (const auto& [file, failure] : {std::pair{"none.so", "none.so is missing"},
                                        {"text.so", "text.so is not of this program's version"},
                                        {"other.so", "other.so is not of this program's version"},
                                        {"broken.so", "undefined symbol: _ZN7tessaly9isNowhereEv"}}) {
        WebPreviewView view{QString::fromStdString((folder.path / file).native())};
        view.loadFile("/folder/index.html");
        view.show();
        const QLabel& notice = *view.findChild<QLabel*>();
        EXPECT_TRUE(
            eventually([&, wanted = QLatin1String{failure}] { return notice.text().contains(wanted); }));
        EXPECT_TRUE(notice.isVisible());
        EXPECT_NE(log.messages.back().find(failure), std::string::npos) << log.messages.back();
        view.reload();
    }
}

} // namespace
} // namespace tessaly
