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

    void setLines(int count) { text.setText(std::u16string(static_cast<std::size_t>(count - 1), u'\n')); }
    // Drawn once, after which the width may change.
    static void nextPass() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    // Whether anything is drawn in the gutter beside the row at that height.
    bool isDrawnAt(double y) {
        const QImage image = gutter.grab().toImage();
        const auto line = static_cast<int>(y);
        return image.copy(0, line, image.width(), 1) != image.copy(0, image.height() - 1, image.width(), 1);
    }
    double rowCenter(int row) const {
        const QRectF first = text.highlightRectForRange({0, 0});
        return first.center().y() + row * first.height();
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
    setLines(9);
    nextPass();
    EXPECT_EQ(gutter.width(), 22);
    setLines(1000);
    const double needed = gutter.requiredThickness();
    EXPECT_GT(needed, 30);
    EXPECT_EQ(gutter.width(), 22) << "not while it may be drawn";
    nextPass();
    EXPECT_EQ(gutter.width(), needed);
    EXPECT_EQ(gutter.ruleThickness(), needed);
    EXPECT_EQ(gutter.geometry().right() + 1, text.viewport()->geometry().left());
    setLines(1);
    page.resize(200, 100);
    nextPass();
    EXPECT_EQ(gutter.width(), 22);
    EXPECT_EQ(gutter.height(), text.viewport()->height());
}

TEST_F(LineNumberViewTest, followsTheTextOfItsClient) {
    text.setText(u"a\r\nb\u2028c\n");
    EXPECT_EQ(gutter.lineIndices().starts(), (std::vector<std::uint32_t>{0, 2, 4, 6}));
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(gutter.lineIndices().count(), 5U);
    EXPECT_EQ(gutter.lineNumberForCharacterIndex(4), 2U);

    QWidget other;
    gutter.setClientView(&other);
    EXPECT_EQ(gutter.lineIndices().count(), 0U);
    EXPECT_EQ(gutter.requiredThickness(), 22);
    EXPECT_EQ(gutter.lineNumberForLocation(5.0F), GutterLayout::notFound);
    EXPECT_FALSE(isDrawnAt(rowCenter(0)));
    gutter.awakeFromNib();
    EXPECT_TRUE(isDrawnAt(rowCenter(0)));
}

TEST_F(LineNumberViewTest, numbersTheFirstRowOfEachLine) {
    text.setText(u"a\n" + std::u16string(60, u'w') + u"\nnel\u0085is no row\u2028but this is");
    ASSERT_EQ(gutter.lineIndices().count(), 5U);
    const int rowsOfW = text.document()->findBlock(2).layout()->lineCount();
    EXPECT_TRUE(isDrawnAt(rowCenter(1)));
    EXPECT_FALSE(isDrawnAt(rowCenter(2))) << "the second row of the wrapped line";
    EXPECT_TRUE(isDrawnAt(rowCenter(1 + rowsOfW)));
    const auto lineAt = [&](int row) {
        return gutter.lineNumberForLocation(static_cast<float>(rowCenter(row)));
    };
    EXPECT_EQ(lineAt(1 + rowsOfW), 3U);
    EXPECT_EQ(lineAt(2 + rowsOfW), 5U);
    EXPECT_TRUE(text.rectangleOfRowAt(gutter.lineIndices()[3]).isNull()) << "stands in the row of the third";
    EXPECT_EQ(lineAt(2), GutterLayout::notFound);
}

TEST_F(LineNumberViewTest, laysOutVisibleLinesOnlyWhenALongTextIsScrolled) {
    setLines(100'000);
    nextPass();
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
    const auto first = marker(1.9F);
    const auto another = marker(1.0F);
    const auto foreign = std::make_shared<RulerMarker>(&gutter, 12.0, nullptr, QPointF{});
    gutter.addMarker(first);
    EXPECT_EQ(gutter.markerAtLine(1), first) << "the fraction of a line is cut";
    EXPECT_EQ(gutter.markerAtLine(0), nullptr);
    gutter.addMarker(another);
    gutter.addMarker(foreign);
    EXPECT_EQ(gutter.markerAtLine(1), another);
    EXPECT_EQ(gutter.markers(), std::vector<VerticalRuler::MarkerPointer>{foreign});
    gutter.removeMarker(first);
    EXPECT_EQ(gutter.markerAtLine(1), nullptr) << "whatever marker is there";
    gutter.addMarker(marker(3));
    gutter.setMarkers({marker(2)});
    EXPECT_EQ(gutter.markerAtLine(3), nullptr);
    EXPECT_NE(gutter.markerAtLine(2), nullptr);
    EXPECT_TRUE(gutter.markers().empty());
    text.setSelection({2, 0});
    QTest::mouseClick(&gutter, Qt::LeftButton, {}, {5, static_cast<int>(rowCenter(0))});
    EXPECT_EQ(gutter.markerAtLine(1), nullptr) << "a click only redraws";
    EXPECT_EQ(text.selection(), (CharacterRange{2, 0}));

    WendleLineNumberMarker copy = *another;
    EXPECT_EQ(copy.lineNumber(), 1U);
    copy.setLineNumber(4'000'000'000U);
    QVariantMap archive;
    copy.encodeWithCoder(archive);
    another->initWithCoder(archive);
    EXPECT_EQ(another->lineNumber(), 4'000'000'000U);
    EXPECT_EQ(archive.keys(), QStringList{QStringLiteral("line")});
}

TEST_F(LineNumberViewTest, drawsAMarkerAsWideAsTheGutterUnderItsNumber) {
    setLines(3);
    gutter.addMarker(marker(2));
    const auto image = gutter.markerImageWithSize({99, 99});
    EXPECT_EQ(image->size(), QSizeF(30, 13)) << "the image of the first request";
    gutter.setRuleThickness(26);
    EXPECT_EQ(image->size(), QSizeF(26, MarkerShape::height));
    const QImage picture = gutter.grab().toImage();
    const auto colorAt = [&](int x, int row) {
        return picture.pixelColor(x, static_cast<int>(rowCenter(row)));
    };
    EXPECT_EQ(colorAt(5, 1).rgb(), QColor::fromRgbF(0.003F, 0.56F, 0.85F).rgb());
    EXPECT_EQ(colorAt(5, 0), QColor{Qt::white});
}

TEST_F(LineNumberViewTest, savesAndRestoresItsLooks) {
    MarkerLineNumberView other{&text};
    QVariantMap archive;
    other.encodeWithCoder(archive);
    EXPECT_TRUE(archive.isEmpty());
    EXPECT_EQ(other.textColor(), QColor::fromRgbF(0.42F, 0.42F, 0.42F));
    EXPECT_EQ(other.alternateTextColor(), QColor{Qt::white});
    other.setAlternateTextColor(QColor{Qt::green});
    other.setBackgroundColor(QColor{Qt::blue});
    other.encodeWithCoder(archive);
    gutter.addMarker(marker(1));
    gutter.initWithCoder(archive);
    EXPECT_EQ(gutter.markerAtLine(1), nullptr);
    EXPECT_EQ(gutter.markerTextAttributes().color, QColor{Qt::green});
    EXPECT_EQ(gutter.textAttributes().font, other.font()) << "absent again";
    const QImage picture = gutter.grab().toImage();
    EXPECT_EQ(picture.pixelColor(1, picture.height() - 1), QColor{Qt::blue});
    EXPECT_NE(picture.pixelColor(picture.width() - 1, picture.height() / 2), QColor{Qt::blue});
}

} // namespace
} // namespace tessaly
