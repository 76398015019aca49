// What the engine may do, and that it says what became of its orders.

#include "codegen/qt/engine/BrowserEngine.h"
#include "codegen/qt/engine/EngineSurroundings.h"

#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

#include <QWebEngineSettings>
#include <QWebEngineView>
#include <csignal>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(PreviewRequestFilter, knowsWholeAddresses) {
    PreviewRequestFilter filter;
    const QUrl page{QStringLiteral("file:///tmp/WebFolder0/index.html")};
    EXPECT_FALSE(filter.isOwnFile(QUrl{})) << "before there is a page";
    filter.setPage(page);
    const std::pair<const char*, bool> rows[] = {{"index.html", true},
                                                 {"styles.css", true},
                                                 {"styles.css?7", true},
                                                 {"styles.css?a=/../x", true},
                                                 {"index.html?7", false},
                                                 {"styles.css#x", false},
                                                 {"styles.css/x?styles.css", false},
                                                 {"other.css?styles.css", false},
                                                 {"x/styles.css", false},
                                                 {"../styles.css", false},
                                                 {"styles.css%3F7", false},
                                                 {"STYLES.CSS", false},
                                                 {"", true}, // the page itself
                                                 {"file://host/tmp/WebFolder0/styles.css", false},
                                                 {"http://localhost/tmp/WebFolder0/styles.css", false},
                                                 {"data:text/css,x", false}};
    for (const auto& [address, own] : rows) {
        EXPECT_EQ(filter.isOwnFile(page.resolved(QUrl{QString::fromLatin1(address)})), own) << address;
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

TEST_F(BrowserEngineTest, showsThePageAndItsRenewedStylesheetAndRunsNothing) {
    engine.load(url(), ++order);
    EXPECT_TRUE(finishes(true));
    EXPECT_TRUE(paints({0, 128, 0}));
    EXPECT_EQ(page().title(), QStringLiteral("-"));
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
}

TEST_F(BrowserEngineTest, goesNowhereAndKeepsNothing) {
    engine.load(url(), ++order);
    EXPECT_TRUE(finishes(true));
    for (const auto off : {QWebEngineSettings::JavascriptEnabled, QWebEngineSettings::LocalStorageEnabled,
                           QWebEngineSettings::PluginsEnabled, QWebEngineSettings::NavigateOnDropEnabled}) {
        EXPECT_FALSE(page().settings()->testAttribute(off)) << off;
    }
    EXPECT_TRUE(page().profile()->isOffTheRecord());
    write("other.html", "other");
    view().setUrl(url().resolved(QUrl{QStringLiteral("other.html")}));
    EXPECT_TRUE(finishes(false));
    EXPECT_EQ(page().url(), url());
    ::kill(static_cast<pid_t>(page().renderProcessPid()), SIGKILL);
    EXPECT_TRUE(eventually([&] { return hasEnded; }));
}

} // namespace
} // namespace tessaly
