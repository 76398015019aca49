#include "sourceview/qt/CustomTextView.h"
#include "support/Palettes.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

class BandTest : public testing::Test {
  protected:
    BandTest() {
        view.resize(300, 200);
        view.awakeFromNib();
        view.setText(u"one\ntwo\nthree\n" + std::u16string(60, u'w') + u"\n");
        view.show();
    }

    // Rows that stand below one another, as the band covers them on whole points.
    QRect rows(int first, int count) const {
        const QRect row = view.highlightRectForRange({0, 0}).toAlignedRect();
        return {0, row.top() + first * row.height(), view.viewport()->width(), count * row.height()};
    }
    // At the right of all text.
    QColor paintedIn(int row) {
        const QImage image = view.viewport()->grab().toImage();
        return image.pixelColor(image.width() - 4, rows(row, 1).center().y());
    }

    CustomTextView view;
};

TEST_F(BandTest, coversTheRowsThatTheRangeTouches) {
    struct Row {
        CharacterRange range;
        int first, count;
    };
    const std::vector<Row> table{
        {{0, 0}, 0, 1},  {{3, 0}, 0, 1},   {{4, 0}, 1, 1},
        {{1, 8}, 0, 3},  {{0, 4}, 0, 1},   // with the end of the line, not the next one
        {{14, 0}, 3, 1}, {{70, 0}, 4, 1},  // the first and the second row of a wrapped line
        {{75, 0}, 5, 1}, {{999, 5}, 5, 1}, // the empty last line, and behind the text
    };
    for (const Row& row : table) {
        EXPECT_EQ(view.highlightRectForRange(row.range).toAlignedRect(), rows(row.first, row.count))
            << row.range.location << " + " << row.range.length;
    }
    view.setText(u"");
    EXPECT_GT(view.highlightRectForRange({0, 0}).height(), 5);
    EXPECT_GE(view.highlightRectForRange({0, 0}).top(), 0);
}

TEST_F(BandTest, isPaintedBehindTheSelectedLinesInEveryState) {
    const QColor base = view.palette().color(QPalette::Base);
    ASSERT_EQ(base, QColor{Qt::white});
    const QColor band{237, 243, 250}; // two fifths of the fill over white
    view.setSelection({5, 0});
    for (const bool enabled : {true, false}) {
        view.setEnabled(enabled);
        view.setReadOnly(!enabled);
        EXPECT_NE(paintedIn(1), paintedIn(0));
    }
    view.setEnabled(true);
    EXPECT_EQ(paintedIn(1), band);
    EXPECT_EQ(paintedIn(2), base);
    view.setSelection({5, 5});
    EXPECT_EQ(paintedIn(2), band);
    EXPECT_EQ(paintedIn(0), base);

    CustomTextView bare;
    EXPECT_EQ(bare.currentInsertionPoint(), -31);
    EXPECT_FALSE(bare.textViewSelectColor().isValid());
    bare.resize(100, 50);
    EXPECT_EQ(bare.viewport()->grab().toImage().pixelColor(50, 8), base) << "no band without its colours";
}

TEST_F(BandTest, leavesLightTextReadable) {
    view.setPalette(darkPalette());
    view.setSelection({5, 0});
    EXPECT_NE(paintedIn(1), paintedIn(0)) << "the band is still seen";
    EXPECT_LT(paintedIn(1).lightness(), 72) << "at least 7 : 1 below the light text";
}

} // namespace
} // namespace tessaly
