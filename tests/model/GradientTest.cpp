#include "model/Gradient.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

// The rules as they are told: three parallel arrays, of which a deletion leaves the third alone.
struct ThreeArrays {
    std::vector<double> positions;
    std::vector<Color> colors;
    std::vector<double> opacities;

    void append(const ColorStop& stop) {
        positions.push_back(stop.position);
        colors.push_back(stop.color);
        opacities.push_back(stop.opacity);
    }
    std::int64_t insertSorted(const ColorStop& stop) {
        const auto greater = std::ranges::find_if(positions, [&](double p) { return p > stop.position; });
        const std::int64_t place = greater - positions.begin();
        if (greater == positions.end()) {
            append(stop);
        } else {
            positions.insert(positions.begin() + place, stop.position);
            colors.insert(colors.begin() + place, stop.color);
            opacities.insert(opacities.begin() + place, stop.opacity);
        }
        return place;
    }
    std::int64_t move(std::int64_t index, double position) {
        const auto i = static_cast<std::size_t>(index);
        const ColorStop moved{position, colors[i], opacities[i]};
        remove(index);
        opacities.erase(opacities.begin() + index);
        return insertSorted(moved);
    }
    void remove(std::int64_t index) {
        positions.erase(positions.begin() + index);
        colors.erase(colors.begin() + index);
    }
    void replace(std::int64_t index, const ColorStop& stop) {
        const auto i = static_cast<std::size_t>(index);
        positions[i] = stop.position;
        colors[i] = stop.color;
        opacities[i] = stop.opacity;
    }
    std::vector<ColorStop> stops() const {
        std::vector<ColorStop> all;
        for (std::size_t i = 0; i < positions.size(); ++i) {
            all.push_back({positions[i], colors[i], opacities[i]});
        }
        return all;
    }
};

TEST(Gradient, keepsTheRulesOfThreeParallelArraysOverAnySequence) {
    std::mt19937 random{7};
    const auto upTo = [&](std::int64_t most) {
        return std::uniform_int_distribution<std::int64_t>{0, most}(random);
    };
    Gradient gradient;
    ThreeArrays arrays;
    for (int i = 0; i < 20'000; ++i) {
        const double position = static_cast<double>(upTo(8)) / 8; // equal ones too
        const ColorStop stop{position, Color::calibratedRGB(i / 20'000.0, 0, 0), i / 20'000.0};
        const std::int64_t count = std::ssize(arrays.positions);
        const std::int64_t index = upTo(std::max<std::int64_t>(count - 1, 0));
        const std::int64_t action = count == 0 ? upTo(1) : count > 12 ? 2 : upTo(4);
        if (action == 0) {
            gradient.append(stop), arrays.append(stop);
        } else if (action == 1) {
            ASSERT_EQ(gradient.insertSorted(stop), arrays.insertSorted(stop));
        } else if (action == 2) {
            gradient.remove(index), arrays.remove(index);
        } else if (action == 3) {
            ASSERT_EQ(gradient.move(index, position), arrays.move(index, position));
        } else {
            gradient.replace(index, stop), arrays.replace(index, stop);
        }
        ASSERT_EQ(gradient.stops(), arrays.stops()) << "after " << i << ", " << action;
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
