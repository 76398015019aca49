#include "sourceview/MarkerShape.h"
#include "sourceview/qt/Css3SourceView.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/MarkerLineNumberView.h"

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class LineNumberViewTest : public testing::Test {
  protected:
    LineNumberViewTest() {
        page.resize(300, 200);
        gutter.setFont(QFont{QStringLiteral("DejaVu Sans"), 10});
        page.show();
    }

    void setLines(std::size_t count) { text.setText(std::u16string(count - 1, u'\n')); }
    double rowCenter(int row) const {
        const QRectF first = text.highlightRectForRange({0, 0});
        return first.center().y() + row * first.height();
    }
    std::uint64_t lineAt(int row) const {
        return gutter.lineNumberForLocation(static_cast<float>(rowCenter(row)));
    }
    QImage rowImage(int row) {
        const QImage image = gutter.grab().toImage();
        return image.copy(0, static_cast<int>(rowCenter(row)), image.width(), 1);
    }
    std::shared_ptr<WendleLineNumberMarker> marker(float line) {
        return std::make_shared<WendleLineNumberMarker>(&gutter, line, gutter.markerImageWithSize({30, 13}),
                                                        QPointF{0, 6.5});
    }

    Css3SourceView page;
    CustomTextView& text = *page.textView();
    MarkerLineNumberView& gutter = *page.lineNumberView();
};

TEST_F(LineNumberViewTest, takesTheWidthOfTheLastNumberOnTheNextPass) {
    setLines(1000);
    EXPECT_GT(gutter.requiredThickness(), 30);
    EXPECT_EQ(gutter.width(), 22) << "not while it may be drawn";
    const auto isAsWideAsNeeded = [this] { return gutter.width() == gutter.requiredThickness(); };
    EXPECT_TRUE(QTest::qWaitFor(isAsWideAsNeeded));
    EXPECT_EQ(gutter.geometry().right() + 1, text.viewport()->geometry().left());
    setLines(1);
    page.resize(200, 100);
    EXPECT_TRUE(QTest::qWaitFor(isAsWideAsNeeded));
    EXPECT_EQ(gutter.size(), QSize(22, text.viewport()->height()));
}

TEST_F(LineNumberViewTest, followsTheTextOfItsClient) {
    text.setText(u"a\r\nb\u2028c\n");
    EXPECT_EQ(gutter.lineIndices().starts(), (std::vector<std::uint32_t>{0, 2, 4, 6}));
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(gutter.lineNumberForCharacterIndex(4), 2U);
    const QImage drawn = rowImage(0);
    gutter.setClientView(&page);
    EXPECT_EQ(gutter.lineIndices().count(), 0U);
    EXPECT_EQ(gutter.requiredThickness(), 22);
    EXPECT_EQ(lineAt(0), GutterLayout::notFound);
    EXPECT_NE(rowImage(0), drawn);
    gutter.awakeFromNib();
    EXPECT_EQ(rowImage(0), drawn);
}

TEST_F(LineNumberViewTest, numbersTheFirstRowOfEachLine) {
    text.setText(u"a\n" + std::u16string(60, u'w') + u"\nnel\u0085is no row\u2028but this is");
    const int rowsOfW = text.document()->findBlock(2).layout()->lineCount();
    const QImage empty = rowImage(2); // the second row of the wrapped line
    EXPECT_EQ(empty, rowImage(9));
    EXPECT_NE(rowImage(1), empty);
    EXPECT_EQ(lineAt(2), GutterLayout::notFound);
    EXPECT_NE(rowImage(1 + rowsOfW), empty);
    EXPECT_EQ(lineAt(1 + rowsOfW), 3U) << "with the fourth line, for which the toolkit starts no row";
    EXPECT_EQ(lineAt(2 + rowsOfW), 5U);
    EXPECT_TRUE(text.rectangleOfRowAt(gutter.lineIndices()[3]).isNull());
}

TEST_F(LineNumberViewTest, laysOutVisibleLinesOnlyWhenALongTextIsScrolled) {
    setLines(100'000);
    for (const int top : {50'000, 20, 99'000}) {
        text.verticalScrollBar()->setValue(top);
        page.grab();
        EXPECT_EQ(gutter.lineNumberForLocation(5.0F), static_cast<std::uint64_t>(top) + 1);
    }
    int laidOut = 0;
    for (QTextBlock block = text.document()->firstBlock(); block.isValid(); block = block.next()) {
        laidOut += block.layout()->lineCount() > 0 ? 1 : 0;
    }
    EXPECT_LT(laidOut, 300);
}

TEST_F(LineNumberViewTest, keepsOneMarkerALine) {
    setLines(5);
    const auto first = marker(1.9F); // the fraction of a line is cut
    const auto another = marker(1);
    const auto foreign = std::make_shared<RulerMarker>(&gutter, 12.0, nullptr, QPointF{});
    for (const auto& added : {first, another}) {
        gutter.addMarker(added);
        EXPECT_EQ(gutter.markerAtLine(1), added);
    }
    gutter.addMarker(foreign);
    EXPECT_EQ(gutter.markers(), std::vector<VerticalRuler::MarkerPointer>{foreign});
    gutter.removeMarker(first);
    EXPECT_EQ(gutter.markerAtLine(1), nullptr) << "whatever marker is there";
    gutter.addMarker(marker(3));
    gutter.setMarkers({marker(2)});
    EXPECT_EQ(gutter.markerAtLine(3), nullptr);
    EXPECT_NE(gutter.markerAtLine(2), nullptr);
    EXPECT_TRUE(gutter.markers().empty());
    QTest::mouseClick(&gutter, Qt::LeftButton, {}, {5, static_cast<int>(rowCenter(0))});
    EXPECT_EQ(gutter.markerAtLine(1), nullptr) << "a click only redraws";

    another->initWithCoder({{QStringLiteral("line"), 4'000'000'000U}});
    QVariantMap archive;
    another->encodeWithCoder(archive);
    EXPECT_EQ(archive, (QVariantMap{{QStringLiteral("line"), 4'000'000'000U}}));
}

TEST_F(LineNumberViewTest, drawsAMarkerAsWideAsTheGutterUnderItsNumber) {
    setLines(3);
    gutter.addMarker(marker(2));
    const auto image = gutter.markerImageWithSize({99, 99});
    EXPECT_EQ(image->size(), QSizeF(30, 13)) << "the image of the first request";
    gutter.setRuleThickness(26);
    EXPECT_EQ(image->size(), QSizeF(26, MarkerShape::height));
    EXPECT_EQ(rowImage(1).pixelColor(5, 0).rgb(), QColor::fromRgbF(0.003F, 0.56F, 0.85F).rgb());
    EXPECT_EQ(rowImage(0).pixelColor(5, 0), QColor{Qt::white});
}

TEST_F(LineNumberViewTest, savesAndRestoresItsLooks) {
    MarkerLineNumberView other{&text};
    QVariantMap archive;
    other.encodeWithCoder(archive);
    EXPECT_TRUE(archive.isEmpty());
    EXPECT_EQ(other.textColor(), QColor::fromRgbF(0.42F, 0.42F, 0.42F));
    other.setAlternateTextColor(QColor{Qt::green});
    other.setBackgroundColor(QColor{Qt::blue});
    other.encodeWithCoder(archive);
    EXPECT_EQ(gutter.markerTextAttributes().color, QColor{Qt::white});
    gutter.addMarker(marker(1));
    gutter.initWithCoder(archive);
    EXPECT_EQ(gutter.markerAtLine(1), nullptr);
    EXPECT_EQ(gutter.markerTextAttributes().color, QColor{Qt::green});
    EXPECT_EQ(gutter.textAttributes().font, other.font()) << "absent again";
    const QImage row = rowImage(5);
    EXPECT_EQ(row.pixelColor(1, 0), QColor{Qt::blue});
    EXPECT_NE(row.pixelColor(row.width() - 1, 0), QColor{Qt::blue}) << "the separator";
}

} // namespace
} // namespace tessaly
