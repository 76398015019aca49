#include "chrome/RelatedTools.h"
#include "chrome/qt/About.h"
#include "chrome/qt/MainTabView.h"
#include "chrome/qt/OpenedAddresses.h"
#include "chrome/qt/RelatedApps.h"
#include "chrome/qt/WebLabel.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

QPushButton* closeButton(const QDialog& sheet) {
    const auto buttons = sheet.findChildren<QPushButton*>();
    return *std::find_if(buttons.begin(), buttons.end(), [](auto* button) { return button->isDefault(); });
}

TEST(Sheets, openOverTheirWindowAndAreKeptWhenTheyClose) {
    QWidget window;
    window.show();
    About about{&window};
    RelatedApps relatedApps{&window};
    for (QDialog* const sheet : {static_cast<QDialog*>(&about), static_cast<QDialog*>(&relatedApps)}) {
        for (int i = 0; i < 2; ++i) {
            sheet->open();
            EXPECT_TRUE(sheet->isVisible());
            EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
            closeButton(*sheet)->click();
            EXPECT_FALSE(sheet->isVisible());
        }
        sheet->open();
        QTest::keyClick(sheet, Qt::Key_Escape);
        EXPECT_FALSE(sheet->isVisible());
    }
}

TEST(Sheets, aboutTellsTheVersionAndLinksHome) {
    const OpenedAddresses opened;
    About about;
    QStringList texts;
    for (const QLabel* const label : about.findChildren<QLabel*>()) {
        texts += label->text();
    }
    EXPECT_TRUE(texts.contains(u"Tessaly"_s));
    EXPECT_EQ(texts.filter(QRegularExpression{u"^Version \\d+\\.\\d+\\.\\d+$"_s}).size(), 1);
    about.findChild<WebLabel*>()->openAddress();
    ASSERT_EQ(opened.list.size(), 1);
    EXPECT_FALSE(QUrl{opened.list[0]}.host().isEmpty());
}

TEST(Sheets, relatedAppsFollowsItsOwnStripOnlyAndOpensEveryPage) {
    const OpenedAddresses opened;
    MainTabView mainTabView{{u"CSS 3"_s, u"HTML"_s, u"Web Preview"_s}};
    RelatedApps sheet;
    EXPECT_EQ(sheet.tabView().tabs(), (QStringList{u"Deceloper Tools"_s, u"Utilities"_s}));
    sheet.show();
    QStringList expected;
    for (const RelatedToolGroup& group : relatedTools) {
        mainTabView.setSelectIndex(0);
        mainTabView.setSelectIndex(1);
        sheet.tabView().setSelectIndex(&group - relatedTools.data());
        for (const RelatedTool& tool : group.tools) {
            expected += QString::fromUtf8(tool.address.data(), static_cast<qsizetype>(tool.address.size()));
        }
        for (QPushButton* const button : sheet.findChildren<QPushButton*>()) {
            if (button->isVisible() && !button->isDefault()) {
                button->click();
            }
        }
    }
    EXPECT_EQ(opened.list, expected);
}

} // namespace
} // namespace tessaly
