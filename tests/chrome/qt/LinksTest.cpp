// The blue labels, and the sheets whose links and buttons open pages.

#include "chrome/RelatedTools.h"
#include "chrome/qt/About.h"
#include "chrome/qt/MainTabView.h"
#include "chrome/qt/RelatedApps.h"
#include "chrome/qt/WebAddressOpener.h"
#include "chrome/qt/WebLabel.h"
#include "support/LogCapture.h"
#include "support/Palettes.h"

#include <QAccessible>
#include <QEnterEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class LinksTest : public testing::Test {
  protected:
    void SetUp() override {
        WebAddressOpener::exchangeOpener([this](const QUrl& url) { opened += url.toString(); });
    }
    void TearDown() override { WebAddressOpener::exchangeOpener({}); }

    const LogCapture log;
    QStringList opened;
    WebLabel label{u"example.org"_s};
};

TEST_F(LinksTest, aLabelIsUnderlinedUnderThePointerAndStaysBlue) {
    QEnterEvent enter{{1, 1}, {1, 1}, {1, 1}};
    QEvent leave{QEvent::Leave};
    for (QEvent* const event : {static_cast<QEvent*>(&enter), &leave}) {
        QCoreApplication::sendEvent(&label, event);
        EXPECT_EQ(label.font().underline(), event == &enter);
        EXPECT_EQ(label.cursor().shape(), event == &enter ? Qt::PointingHandCursor : Qt::ArrowCursor);
        EXPECT_EQ(label.palette().color(label.foregroundRole()), QColor{Qt::blue});
    }
    QWidget dark;
    dark.setPalette(darkPalette());
    label.setParent(&dark);
    EXPECT_GT(label.palette().color(label.foregroundRole()).lightness(), 160) << "readable on a dark desktop";
    label.setParent(nullptr);
}

TEST_F(LinksTest, aLabelOpensItsAddressOnAClickOrAKeyAndLogsIt) {
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(opened, QStringList{u"http://example.org"_s});
    EXPECT_EQ(log.messages, std::vector<std::string>{"Not Found example.org"});
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A}) {
        QTest::keyClick(&label, key);
    }
    QAccessibleInterface* const link = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(link->role(), QAccessible::Link);
    EXPECT_EQ(link->text(QAccessible::Name), u"example.org"_s);
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened.size(), 5);
}

TEST_F(LinksTest, anAddressThatIsNoneOpensNothingAndIsLogged) {
    for (const auto& text :
         {u"no such host"_s, u"%zz"_s, u"[::1"_s, u"a\"b"_s, u"see http://example.org"_s}) {
        label.setText(text);
        label.openAddress();
    }
    EXPECT_EQ(opened, QStringList{});
    EXPECT_EQ(log.messages.size(), 5U);
    EXPECT_EQ(log.messages.back(), "Found see http://example.org");
}

TEST_F(LinksTest, sheetsOpenOverTheirWindowAndAreKeptWhenTheyClose) {
    About about;
    RelatedApps relatedApps;
    for (QDialog* const sheet : {static_cast<QDialog*>(&about), static_cast<QDialog*>(&relatedApps)}) {
        EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
        for (const Qt::Key closing : {Qt::Key_Return, Qt::Key_Escape}) {
            sheet->open();
            EXPECT_TRUE(sheet->isVisible());
            QTest::keyClick(sheet, closing);
            EXPECT_FALSE(sheet->isVisible());
        }
    }
}

TEST_F(LinksTest, aboutTellsTheVersionAndLinksHome) {
    const About about;
    QStringList texts;
    for (const QLabel* const text : about.findChildren<QLabel*>()) {
        texts += text->text();
    }
    EXPECT_TRUE(texts.contains(u"Tessaly"_s));
    EXPECT_EQ(texts.filter(QRegularExpression{u"^Version \\d+\\.\\d+\\.\\d+$"_s}).size(), 1);
    about.findChild<WebLabel*>()->openAddress();
    EXPECT_EQ(opened.filter(QRegularExpression{u"^http://\\w"_s}).size(), 1);
}

TEST_F(LinksTest, relatedAppsFollowsItsOwnStripOnlyAndOpensEveryPage) {
    MainTabView mainTabView{{u"CSS 3"_s, u"HTML"_s, u"Web Preview"_s}};
    RelatedApps sheet;
    EXPECT_EQ(sheet.tabView().tabs(), (QStringList{u"Deceloper Tools"_s, u"Utilities"_s}));
    sheet.show();
    QStringList expected;
    for (const RelatedToolGroup& group : relatedTools) {
        sheet.tabView().setSelectIndex(&group - relatedTools.data());
        mainTabView.setSelectIndex(&group == relatedTools.data() ? 1 : 0);
        for (const RelatedTool& tool : group.tools) {
            expected += QString::fromStdString(std::string{tool.address});
        }
        for (QPushButton* const button : sheet.findChildren<QPushButton*>()) {
            if (button->isVisible() && !button->isDefault()) {
                button->click();
            }
        }
    }
    EXPECT_EQ(opened, expected);
}

} // namespace
} // namespace tessaly
