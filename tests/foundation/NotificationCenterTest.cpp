#include "foundation/NotificationCenter.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Observation = NotificationCenter::Observation;

TEST(NotificationCenter, deliversByNameAndObjectInOrderOfRegistration) {
    NotificationCenter center;
    std::string calls;
    const int sender = 0;
    const int other = 0;
    const std::vector<Observation> keep = [&] {
        std::vector<Observation> list;
        list.push_back(center.addObserver("A", nullptr, [&](const auto&) { calls += '1'; }));
        list.push_back(center.addObserver("A", &sender, [&](const auto&) { calls += '2'; }));
        list.push_back(center.addObserver("B", nullptr, [&](const auto&) { calls += '3'; }));
        list.push_back(center.addObserver("A", nullptr, [&](const Notification& n) {
            calls += std::any_cast<std::string>(n.userInfo.at("text"));
        }));
        return list;
    }();
    center.post({"A", &sender, {{"text", std::string{"x"}}}});
    center.post({"A", &other, {{"text", std::string{"y"}}}});
    center.post({"B", nullptr, {}});
    EXPECT_EQ(calls, "12x1y3");
}

TEST(NotificationCenter, handlersMayPostAddAndRemoveWhileOneIsDelivered) {
    NotificationCenter center;
    std::string calls;
    Observation first;
    Observation second;
    std::vector<Observation> added;
    first = center.addObserver("A", nullptr, [&](const auto&) {
        calls += '1';
        first.reset(); // itself, while it runs
        second.reset();
        added.push_back(center.addObserver("A", nullptr, [&](const auto&) { calls += 'n'; }));
        center.post({"A", nullptr, {}});
    });
    second = center.addObserver("A", nullptr, [&](const auto&) { calls += '2'; });
    const Observation third = center.addObserver("A", nullptr, [&](const auto&) { calls += '3'; });
    center.post({"A", nullptr, {}});
    EXPECT_EQ(calls, "13n3") << "the nested post reaches the third and the new one, then the outer the third";
}

TEST(NotificationCenter, anObservationEndsWithItsOwnerAndSurvivesItsCenter) {
    int calls = 0;
    auto center = std::make_unique<NotificationCenter>();
    Observation moved;
    {
        Observation original = center->addObserver("A", nullptr, [&](const auto&) { ++calls; });
        const Observation shortLived = center->addObserver("A", nullptr, [&](const auto&) { calls += 10; });
        moved = std::move(original);
    }
    center->post({"A", nullptr, {}});
    EXPECT_EQ(calls, 1);
    center.reset();
    moved.reset();
}

} // namespace
} // namespace tessaly
