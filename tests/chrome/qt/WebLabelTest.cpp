#include "chrome/qt/WebLabel.h"

#include "chrome/qt/OpenedAddresses.h"
#include "support/LogCapture.h"
#include "support/Palettes.h"

#include <QAccessible>
#include <QEnterEvent>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class WebLabelTest : public testing::Test {
  protected:
    void hover(bool inside) {
        const QPointF position{1, 1};
        QEnterEvent enter{position, position, position};
        QEvent leave{QEvent::Leave};
        QCoreApplication::sendEvent(&label, inside ? static_cast<QEvent*>(&enter) : &leave);
    }
    QColor color() const { return label.palette().color(label.foregroundRole()); }

    const LogCapture log;
    const OpenedAddresses opened;
    WebLabel label{u"example.org"_s};
};

TEST_F(WebLabelTest, isUnderlinedUnderThePointerAndStaysBlue) {
    for (int i = 0; i < 2; ++i) {
        hover(true);
        EXPECT_TRUE(label.font().underline());
        EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
        EXPECT_EQ(color(), QColor{Qt::blue});
        hover(false);
        EXPECT_FALSE(label.font().underline());
        EXPECT_EQ(label.cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(color(), QColor{Qt::blue});
    }
    QWidget dark;
    dark.setPalette(darkPalette());
    label.setParent(&dark);
    EXPECT_GT(color().lightness(), 160) << "readable on a dark desktop";
    label.setParent(nullptr);
}

TEST_F(WebLabelTest, opensItsAddressOnAClickOrAKeyAndLogsIt) {
    label.show();
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(opened.list, QStringList{u"http://example.org"_s});
    EXPECT_EQ(log.messages, std::vector<std::string>{"Not Found example.org"});
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A}) {
        QTest::keyClick(&label, key);
    }
    QAccessibleInterface* const link = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(link->role(), QAccessible::Link);
    EXPECT_EQ(link->text(QAccessible::Name), u"example.org"_s);
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened.list.size(), 5);
}

TEST_F(WebLabelTest, anAddressThatIsNoneOpensNothingAndIsLogged) {
    for (const char* const text :
         {"no such host", "see http://example.org", "%zz", "example.org/a b", "[::1", "a\"b"}) {
        label.setText(QString::fromUtf8(text));
        label.openAddress();
    }
    EXPECT_EQ(opened.list, QStringList{});
    EXPECT_EQ(log.messages.size(), 6U);
    EXPECT_TRUE(log.has("Found see http://example.org"));
}

} // namespace
} // namespace tessaly
