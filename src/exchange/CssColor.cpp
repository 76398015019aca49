#include "exchange/CssColor.h"

#include "exchange/CssCharacter.h"
#include "exchange/CssColorFunctions.h"
#include "exchange/CssColorReader.h"
#include "exchange/CssItems.h"
#include "exchange/CssName.h"
#include "exchange/CssQuantity.h"
#include "exchange/NamedColors.h"

#include <algorithm>

namespace tessaly {
namespace {

using Kind = CssToken::Kind;
using QuantityKind = CssQuantity::Kind;
using Commas = CssColorFunction::Commas;
using colorSpaces::Triple;

constexpr std::size_t mostArguments = 12;
constexpr double hairOutside = 0.5 / 255; // what no screen shows, and what rounding makes

ReadColor colorOfBytes(std::uint32_t rgb, double alpha) {
    const auto channel = [&](unsigned shift) {
        return static_cast<double>(static_cast<float>((rgb >> shift) & 0xFFU) / 255.0F);
    };
    return {Color::calibratedRGB(channel(16), channel(8), channel(0)), alpha};
}

// Three, four, six or eight digits, the alpha last.
std::optional<ReadColor> hexadecimalColor(std::string_view written) {
    const std::string digits = withoutCssEscapes(written);
    const std::size_t count = digits.size();
    if ((count != 3 && count != 4 && count != 6 && count != 8) ||
        std::ranges::any_of(digits, [](char c) { return hexDigit(c) < 0; })) {
        return std::nullopt;
    }
    const std::size_t width = count < 6 ? 1 : 2;
    std::uint32_t bytes = 0;
    for (std::size_t place = 0; place < count; place += width) {
        const int high = hexDigit(digits[place]);
        bytes = bytes << 8U | static_cast<std::uint32_t>(high * 16 + hexDigit(digits[place + width - 1]));
    }
    const bool hasAlpha = count / width == 4;
    const double alpha = hasAlpha ? static_cast<double>(static_cast<float>(bytes & 0xFFU) / 255.0F) : 1.0;
    return colorOfBytes(hasAlpha ? bytes >> 8U : bytes, alpha);
}

bool isNone(const CssComponent& component) {
    return component.isIdent("none");
}

std::optional<double> channelValue(const CssChannel& channel, const CssComponent& component) {
    if (isNone(component)) {
        return std::clamp(0.0, channel.lowest, channel.highest);
    }
    const auto quantity = readCssQuantity(component);
    if (!quantity) {
        return std::nullopt;
    }
    double value = quantity->value;
    if (quantity->kind == QuantityKind::Percent && channel.ofPercent > 0) {
        value *= channel.ofPercent / 100;
    } else if (quantity->kind != QuantityKind::Number &&
               !(quantity->kind == QuantityKind::Angle && channel.isHue)) {
        return std::nullopt;
    }
    return std::clamp(value, channel.lowest, channel.highest);
}

// What may be parted by commas has but one kind of numbers, and none of them is left out.
bool fitsCommas(const CssColorFunction& function, std::span<const CssComponent> channels) {
    const auto isPercent = [](const CssComponent& c) {
        const auto quantity = c.isFunction() ? readCssQuantity(c) : std::nullopt;
        return c.token.kind == Kind::Percentage || (quantity && quantity->kind == QuantityKind::Percent);
    };
    const bool noneLeftOut = std::ranges::none_of(channels, isNone);
    switch (function.commas) {
    case Commas::Uniform: {
        const auto count = std::ranges::count_if(channels, isPercent);
        return noneLeftOut && (count == 0 || count == 3);
    }
    case Commas::Percent:
        return noneLeftOut && isPercent(channels[1]) && isPercent(channels[2]);
    default:
        return false;
    }
}

// The three channels and the alpha, if there is one, out of "1, 2, 3, 4" or "1 2 3 / 4".
std::optional<std::vector<CssComponent>> channelList(const CssColorFunction& function,
                                                     CssArgument components) {
    const auto arguments = argumentsOf(components);
    std::vector<CssComponent> list;
    list.reserve(components.size());
    if (arguments.size() == 1) {
        list.assign(components.begin(), components.end());
        if (list.size() == 5 && list[3].token.is('/')) {
            list.erase(list.begin() + 3);
            return list;
        }
        return list.size() == 3 ? std::optional{list} : std::nullopt;
    }
    for (const CssArgument argument : arguments) {
        if (argument.size() != 1) {
            return std::nullopt;
        }
        list.push_back(argument.front());
    }
    const bool fits =
        (list.size() == 3 || list.size() == 4) && fitsCommas(function, std::span{list}.first(3));
    return fits ? std::optional{list} : std::nullopt;
}

std::optional<ReadColor> functionColor(const CssColorFunction& function, CssArgument components) {
    const auto list = channelList(function, components);
    if (!list) {
        return std::nullopt;
    }
    Triple values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto value = channelValue(function.channels[i], (*list)[i]);
        if (!value) {
            return std::nullopt;
        }
        values[i] = *value;
    }
    const auto alpha = list->size() == 4 ? channelValue({1, false, 0, 1}, (*list)[3]) : std::optional{1.0};
    if (!alpha) {
        return std::nullopt;
    }
    const Triple rgb = function.toSrgb(values);
    const bool clipped =
        std::ranges::any_of(rgb, [](double c) { return !(c > -hairOutside && c < 1 + hairOutside); });
    return ReadColor{Color::calibratedRGB(rgb[0], rgb[1], rgb[2]), *alpha, clipped};
}

std::optional<ReadColor> functionColor(const CssComponent& component) {
    const CssComponents content = readCssComponents(component.content, 0, mostArguments);
    if (!content.complete || !content.balanced || content.list.empty()) {
        return std::nullopt;
    }
    const CssArgument all{content.list};
    if (!isCssName(component.token.name, "color")) {
        const CssColorFunction* function = findColorFunction(component.token.name);
        return function ? functionColor(*function, all) : std::nullopt;
    }
    const CssColorFunction* space =
        all.front().token.kind == Kind::Ident ? findColorSpace(all.front().token.name) : nullptr;
    return space ? functionColor(*space, all.subspan(1)) : std::nullopt;
}

} // namespace

std::optional<ReadColor> readCssColor(const CssComponent& component) {
    switch (component.token.kind) {
    case Kind::Hash:
        return hexadecimalColor(component.token.name);
    case Kind::Ident: {
        const std::string name = cssName(component.token.name);
        if (name == "transparent") {
            return ReadColor{Color::black(), 0.0};
        }
        const auto rgb = namedColor(name);
        return rgb ? std::optional{colorOfBytes(*rgb, 1.0)} : std::nullopt;
    }
    case Kind::Function:
        return functionColor(component);
    default:
        return std::nullopt;
    }
}

bool mixesInSrgb(const CssComponent& color) {
    if (!color.isFunction()) {
        return true;
    }
    const CssColorFunction* function = findColorFunction(color.token.name);
    return function && function->mixesInSrgb;
}

std::optional<ReadColor> readCssColor(std::string_view text) {
    const CssComponents value = readCssComponents(text, 0, 2);
    const bool isOne = value.complete && value.balanced && !value.closed && value.list.size() == 1;
    return isOne ? readCssColor(value.list.front()) : std::nullopt;
}

std::optional<ReadColor> readCopiedColor(std::string_view text) {
    CssItems items{text};
    const auto only = items.next();
    const bool isOnly = only && only->rule == 0 && !items.next();
    return isOnly ? readCssColor(only->text) : std::nullopt;
}

} // namespace tessaly
