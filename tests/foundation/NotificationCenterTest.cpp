#include "foundation/NotificationCenter.h"

#include <array>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class NotificationCenterTest : public testing::Test {
  protected:
    using Observation = NotificationCenter::Observation;

    Observation observe(char mark, const char* name = "A", const void* object = nullptr) {
        return center->addObserver(name, object, [this, mark](const auto&) { calls += mark; });
    }

    std::unique_ptr<NotificationCenter> center = std::make_unique<NotificationCenter>();
    std::string calls;
};

TEST_F(NotificationCenterTest, deliversByNameAndObjectInOrderOfRegistration) {
    const std::array observations{observe('1'), observe('2', "A", &calls), observe('3', "B"), observe('4')};
    center->post({"A", &calls, {}});
    center->post({"A", this, {}});
    center->post({"B", nullptr, {}});
    EXPECT_EQ(calls, "124143");
}

TEST_F(NotificationCenterTest, handlersMayPostAddAndRemoveWhileOneIsDelivered) {
    Observation first, second, added;
    first = center->addObserver("A", nullptr, [&](const auto&) {
        calls += '1';
        first.reset(); // itself, while it runs
        second.reset();
        added = observe('n');
        center->post({"A", nullptr, {}});
    });
    second = observe('2');
    Observation third = observe('3');
    center->post({"A", nullptr, {}});
    EXPECT_EQ(calls, "13n3") << "the nested post reaches the third and the new one, then the outer the third";

    third = observe('4'); // what it held before ends
    observe('5').reset();
    center->post({"A", nullptr, {}});
    EXPECT_EQ(calls, "13n3n4");
    center.reset(); // the observations live on
}

} // namespace
} // namespace tessaly
