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

    QWidget* engine() const {
        for (QWidget* const child : view.findChildren<QWidget*>()) {
            if (child->inherits("tessaly::FakeEngine")) {
                return child;
            }
        }
        return nullptr;
    }
    QStringList orders() const {
        return engine() == nullptr ? QStringList{} : engine()->property("orders").toStringList();
    }
    void engineDoes(const char* what) { QMetaObject::invokeMethod(engine(), what); }
    void enginePaints(int before = 0) { QMetaObject::invokeMethod(engine(), "paint", Q_ARG(int, before)); }
    void engineFinishes(bool sound) { QMetaObject::invokeMethod(engine(), "finish", Q_ARG(bool, sound)); }
    void engineEnds() {
        engine()->setProperty("orders", {});
        engineDoes("end");
        engineDoes("end"); // as the real one does when its process cannot start
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
    EXPECT_EQ(orders(), QStringList{QStringLiteral("load index.html")});
    engineFinishes(true);
    EXPECT_TRUE(isBlank());
    enginePaints();
    EXPECT_FALSE(cover().isVisible());
}

TEST_F(WebPreviewViewTest, joinsChangesOnTheirWayAndKeepsThoseOfAHiddenViewForLater) {
    showPage();
    const QStringList once{QStringLiteral("load index.html"), QStringLiteral("renew")};
    for (int i = 0; i < 3; ++i) {
        view.reload();
    }
    EXPECT_EQ(orders(), once);
    engineFinishes(true);
    EXPECT_EQ(orders(), once + QStringList{QStringLiteral("renew")});
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
    engineFinishes(false);
    EXPECT_EQ(orders().last(), QStringLiteral("load index.html")) << "what cannot be renewed";
    engineFinishes(false);
    EXPECT_FALSE(cover().text().isEmpty());
    view.loadFile("/other/page.html");
    EXPECT_EQ(orders().last(), QStringLiteral("load page.html"));
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
