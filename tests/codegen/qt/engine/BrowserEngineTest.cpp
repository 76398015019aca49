// What the engine may do, and that it says what became of its orders.

#include "codegen/qt/engine/BrowserEngine.h"
#include "codegen/qt/engine/EngineSurroundings.h"

#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

#include <QWebEngineProfile>
#include <QWebEngineView>
#include <csignal>
#include <gtest/gtest.h>
#include <optional>

namespace tessaly {
namespace {

TEST(PreviewRequestFilter, knowsWholeAddresses) {
    PreviewRequestFilter filter;
    const QUrl page{QStringLiteral("file:///tmp/WebFolder0/index.html")};
    EXPECT_FALSE(filter.isOwnFile(QUrl{})) << "before there is a page";
    filter.setPage(page);
    const auto isOwn = [&](const char* address) {
        return filter.isOwnFile(page.resolved(QUrl{QString::fromLatin1(address)}));
    };
    for (const auto* const own : {"index.html", "styles.css", "styles.css?a=/../x"}) {
        EXPECT_TRUE(isOwn(own)) << own;
    }
    for (const auto* const other :
         {"index.html?7", "styles.css#x", "styles.css/x?styles.css", "other.css?styles.css", "x/styles.css",
          "styles.css%3F7", "STYLES.CSS", "file://host/tmp/WebFolder0/styles.css",
          "http://localhost/tmp/WebFolder0/styles.css"}) {
        EXPECT_FALSE(isOwn(other)) << other;
    }
}

class BrowserEngineTest : public testing::Test {
  protected:
    BrowserEngineTest() {
        write("index.html", "<!DOCTYPE html><title>-</title><link rel='stylesheet' href='styles.css'>"
                            "<script>document.title = 'ran'; console.log('painted 1')</script>"
                            "<body onload=\"document.title = 'ran'\">");
        write("styles.css", "body { background: rgb(0, 128, 0); }");
        parent.resize(300, 200);
        parent.show();
        engine.widget().setGeometry(parent.rect());
        engine.widget().show();
    }

    void write(const char* name, const char* contents) const {
        std::ofstream{temporary.path / name} << contents;
    }
    bool finishes(bool sound) {
        result = {};
        isPainted = false;
        return eventually([&] { return result == sound; });
    }
    bool paints(QColor color) {
        return eventually([&] { return isPainted && parent.grab().toImage().pixelColor(150, 100) == color; });
    }
    QWebEngineView& view() { return *qobject_cast<QWebEngineView*>(&engine.widget()); }
    const QWebEnginePage& page() { return *view().page(); }
    QUrl url() const {
        return QUrl::fromLocalFile(QString::fromStdString((temporary.path / "index.html").native()));
    }

    static const EngineSurroundings& surroundings() { // once, as in the program
        static const EngineSurroundings process{[](std::string_view) {}};
        return process;
    }

    const EngineSurroundings& process = surroundings();
    const TemporaryFolder temporary;
    QWidget parent;
    std::optional<bool> result;
    bool isPainted = false;
    bool hasEnded = false;
    int order = 0;
    BrowserEngine engine{
        parent,
        {[this](int of, bool sound) { result = of == order ? std::optional{sound} : std::nullopt; },
         [this](int of) { isPainted = of == order; }, [this] { hasEnded = true; }}};
};

TEST_F(BrowserEngineTest, showsThePageAndItsRenewedStylesheetRunsNothingAndGoesNowhere) {
    EXPECT_TRUE(page().profile()->isOffTheRecord());
    engine.load(url(), ++order);
    EXPECT_TRUE(finishes(true));
    EXPECT_TRUE(paints({0, 128, 0}));
    EXPECT_EQ(page().title(), QStringLiteral("-"));
    write("other.html", "other");
    view().setUrl(url().resolved(QUrl{QStringLiteral("other.html")}));
    EXPECT_TRUE(finishes(false));
    EXPECT_EQ(page().url(), url());
    write("secret.css", "body { background: red !important; }");
    write("styles.css",
          "@import 'secret.css'; @import 'file:///etc/passwd'; body { background: rgb(0, 0, 255); }");
    engine.renewStylesheet(++order);
    EXPECT_TRUE(finishes(true));
    EXPECT_TRUE(paints({0, 0, 255}));
    std::filesystem::remove(temporary.path / "styles.css");
    engine.renewStylesheet(++order);
    EXPECT_TRUE(finishes(true));
    EXPECT_TRUE(paints(Qt::white));
    write("index.html", "<!DOCTYPE html>a page that the user has changed");
    engine.load(url(), ++order);
    EXPECT_TRUE(finishes(true));
    engine.renewStylesheet(++order);
    EXPECT_TRUE(finishes(false));
    std::filesystem::remove(temporary.path / "index.html");
    engine.load(url(), ++order);
    EXPECT_TRUE(finishes(false));
    ::kill(static_cast<pid_t>(page().renderProcessPid()), SIGKILL);
    EXPECT_TRUE(eventually([&] { return hasEnded; }));
}

} // namespace
} // namespace tessaly
