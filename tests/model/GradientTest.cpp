#include "model/Gradient.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

// The rules as they are told: the opacities are a list of their own, which a deletion leaves alone.
struct SeparateOpacities {
    std::vector<ColorStop> places; ///< their own opacities do not count
    std::vector<double> opacities;

    void append(const ColorStop& stop) {
        places.push_back(stop);
        opacities.push_back(stop.opacity);
    }
    std::int64_t insertSorted(const ColorStop& stop) {
        const std::int64_t place =
            std::ranges::find_if(places, [&](const auto& other) { return other.position > stop.position; }) -
            places.begin();
        opacities.insert(place == std::ssize(places) ? opacities.end() : opacities.begin() + place,
                         stop.opacity);
        places.insert(places.begin() + place, stop);
        return place;
    }
    std::int64_t move(std::int64_t index, double position) {
        ColorStop moved = stops()[static_cast<std::size_t>(index)];
        moved.position = position;
        remove(index);
        opacities.erase(opacities.begin() + index);
        return insertSorted(moved);
    }
    void remove(std::int64_t index) { places.erase(places.begin() + index); }
    void replace(std::size_t index, const ColorStop& stop) {
        places[index] = stop;
        opacities[index] = stop.opacity;
    }
    std::vector<ColorStop> stops() const {
        auto all = places;
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i].opacity = opacities[i];
        }
        return all;
    }
};

TEST(Gradient, keepsTheRulesOfSeparateOpacitiesOverAnySequence) {
    std::mt19937 random{7};
    const auto upTo = [&](std::int64_t most) {
        return std::uniform_int_distribution<std::int64_t>{0, most}(random);
    };
    Gradient gradient;
    SeparateOpacities lists;
    for (int i = 0; i < 20'000; ++i) {
        const double position = static_cast<double>(upTo(8)) / 8; // equal ones too
        const ColorStop stop{position, Color::calibratedRGB(i / 20'000.0, 0, 0), i / 20'000.0};
        const std::int64_t count = std::ssize(lists.places);
        const std::int64_t index = upTo(std::max<std::int64_t>(count - 1, 0));
        const std::int64_t action = count == 0 ? upTo(1) : count > 12 ? 2 : upTo(4);
        if (action == 0) {
            gradient.append(stop), lists.append(stop);
        } else if (action == 1) {
            ASSERT_EQ(gradient.insertSorted(stop), lists.insertSorted(stop));
        } else if (action == 2) {
            gradient.remove(index), lists.remove(index);
        } else if (action == 3) {
            ASSERT_EQ(gradient.move(index, position), lists.move(index, position));
        } else {
            gradient.replace(index, stop), lists.replace(static_cast<std::size_t>(index), stop);
        }
        ASSERT_EQ(gradient.stops(), lists.stops()) << "after " << i << ", " << action;
        ASSERT_EQ(gradient.stopAt(count).has_value(), count < std::ssize(gradient.stops()));
    }
    EXPECT_FALSE(gradient.stopAt(-1));
    Gradient copy = gradient;
    EXPECT_EQ(copy, gradient);
    copy.setOrientation(copy.orientation() + 1);
    EXPECT_NE(copy, gradient);
}

} // namespace
} // namespace tessaly
