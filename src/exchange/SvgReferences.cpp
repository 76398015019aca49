#include "exchange/SvgDocument.h"

#include <algorithm>
#include <unordered_map>

namespace tessaly {
namespace {

constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

// For each gradient the place of the one that it refers to. Of two with one id the first is meant.
std::vector<std::size_t> targetsOf(const std::vector<SvgGradient>& gradients) {
    std::unordered_map<std::string_view, std::size_t> places;
    for (std::size_t i = 0; i < gradients.size(); ++i) {
        places.emplace(gradients[i].id, i);
    }
    std::vector<std::size_t> targets;
    targets.reserve(gradients.size());
    for (const SvgGradient& gradient : gradients) {
        const auto found = gradient.reference.empty() ? places.end() : places.find(gradient.reference);
        targets.push_back(found == places.end() ? nowhere : found->second);
    }
    return targets;
}

template <typename Value>
void inheritValue(std::optional<Value>& own, const std::optional<Value>& other) {
    if (!own) {
        own = other;
    }
}

void inherit(SvgGradient& gradient, const SvgGradient& from) {
    if (gradient.isRadial == from.isRadial) {
        for (std::size_t i = 0; i < gradient.geometry.size(); ++i) {
            inheritValue(gradient.geometry[i], from.geometry[i]);
        }
    }
    inheritValue(gradient.isInUserSpace, from.isInUserSpace);
    inheritValue(gradient.transform, from.transform);
    inheritValue(gradient.isRepeated, from.isRepeated);
    if (gradient.stopCount == 0) {
        gradient.firstStop = from.firstStop;
        gradient.stopCount = from.stopCount;
    }
}

} // namespace

void SvgDocument::resolveReferences() {
    enum class State { Open, OnTheWay, Done };
    const std::vector<std::size_t> targets = targetsOf(gradients_);
    std::vector<State> states(gradients_.size(), State::Open);
    std::vector<std::size_t> chain;
    for (std::size_t i = 0; i < gradients_.size(); ++i) {
        std::size_t next = i;
        for (; next != nowhere && states[next] == State::Open; next = targets[next]) {
            states[next] = State::OnTheWay;
            chain.push_back(next);
        }
        std::size_t from = next != nowhere && states[next] == State::Done ? next : nowhere; // else a loop
        for (; !chain.empty(); chain.pop_back()) {
            const std::size_t place = chain.back();
            if (from != nowhere) {
                inherit(gradients_[place], gradients_[from]);
            }
            states[place] = State::Done;
            from = place;
        }
    }
}

} // namespace tessaly
