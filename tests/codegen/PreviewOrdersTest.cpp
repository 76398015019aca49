#include "codegen/PreviewOrders.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Kind = PreviewOrders::Kind;

std::optional<PreviewOrders::Order> order(Kind kind, int number) {
    return PreviewOrders::Order{kind, number};
}

TEST(PreviewOrders, areOneAtATimeAndLoadThePageWhenItCannotBeRenewed) {
    PreviewOrders orders;
    EXPECT_EQ(orders.take(), std::nullopt);
    orders.pageChanged();
    EXPECT_EQ(orders.take(), order(Kind::LoadPage, 1));
    orders.stylesheetChanged();
    orders.stylesheetChanged();
    EXPECT_EQ(orders.take(), std::nullopt) << "one is under way";
    EXPECT_TRUE(orders.finished(1, true));
    EXPECT_EQ(orders.take(), order(Kind::RenewStylesheet, 2));
    EXPECT_FALSE(orders.finished(1, true)) << "told once more";
    EXPECT_TRUE(orders.finished(2, false));
    EXPECT_EQ(orders.take(), order(Kind::LoadPage, 3));
    EXPECT_TRUE(orders.finished(3, false));
    EXPECT_FALSE(orders.isAnyWanted()) << "the next change tries again";
    orders.stylesheetChanged();
    EXPECT_EQ(orders.take(), order(Kind::LoadPage, 4));
    orders.pageChanged(); // another one meanwhile
    EXPECT_EQ(orders.take(), order(Kind::LoadPage, 5));
    EXPECT_FALSE(orders.finished(4, true));
    EXPECT_TRUE(orders.finished(5, true));
}

TEST(PreviewOrders, tellWhatMayBeSeen) {
    PreviewOrders orders;
    orders.pageChanged();
    orders.take();
    EXPECT_TRUE(orders.isTrue(1));
    orders.finished(1, true);
    orders.stylesheetChanged();
    orders.outdate();
    orders.take();
    EXPECT_FALSE(orders.isTrue(1));
    orders.finished(2, true);
    orders.stylesheetChanged();
    orders.take();
    EXPECT_TRUE(orders.isTrue(2)) << "while changes go on arriving";
    orders.engineEnded();
    EXPECT_FALSE(orders.isTrue(3) || orders.finished(3, true)) << "told by an engine that is gone";
    EXPECT_EQ(orders.take(), order(Kind::LoadPage, 4));
}

} // namespace
} // namespace tessaly
