#include "codegen/PreviewOrders.h"

#include <utility>

namespace tessaly {

void PreviewOrders::pageChanged() {
    pageIsSound_ = false;
    wanted_ = true;
    underWay_ = 0;
}

std::optional<PreviewOrders::Order> PreviewOrders::take() {
    if (!wanted_ || underWay_ != 0) {
        return std::nullopt;
    }
    wanted_ = false;
    underWay_ = ++last_;
    return Order{pageIsSound_ ? Kind::RenewStylesheet : Kind::LoadPage, underWay_};
}

bool PreviewOrders::finished(int number, bool sound) {
    if (number != underWay_) {
        return false;
    }
    underWay_ = 0;
    wanted_ =
        wanted_ || (pageIsSound_ && !sound); // a stylesheet that cannot be renewed: load the page instead
    pageIsSound_ = sound;
    return true;
}

void PreviewOrders::engineEnded() {
    pageChanged();
    outdate();
}

} // namespace tessaly
