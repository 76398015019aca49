#include "document/Incoming.h"

#include "exchange/Readers.h"
#include "presets/PresetReader.h"

#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace tessaly {
namespace {

constexpr std::string_view databaseStart = "SQLite format 3";
constexpr std::size_t longestColor = 256; // a colour with its comments

Incoming failed(std::string sentence) {
    Incoming incoming;
    incoming.failure = std::move(sentence);
    return incoming;
}

Incoming tooLong(const std::string& source) {
    return failed("More than " + std::to_string(longestIncoming >> 20U) + " MB in " + source + ": not read");
}

// Why nothing can be taken.
std::string failureOf(const Reading& reading, const std::string& source) {
    if (reading.leftOut == 0) {
        return "No gradient in " + source;
    }
    std::string text = "The gradient ";
    if (reading.leftOut > 1) {
        text = "None of " + std::to_string(reading.leftOut) + " gradients can be taken: the first ";
    }
    return text.append(reading.reason);
}

std::string leftOutOf(const Reading& reading) {
    std::string text;
    if (reading.leftOut > 0) {
        const bool isOne = reading.leftOut == 1;
        text = std::to_string(reading.leftOut) + " more gradient" + (isOne ? "" : "s") + " left out: ";
        text.append(isOne ? "it " : "the first ").append(reading.reason);
    }
    addPhrase(text, reading.complete ? "" : "what was too much to read is left out");
    return text;
}

Incoming readPresets(const std::filesystem::path& file, const std::string& name) {
    const auto presets = readPresetFile(file);
    if (!presets || presets->empty()) {
        return failed("No presets in " + name);
    }
    Incoming incoming;
    for (const Gradient& gradient : *presets) {
        incoming.gradients.push_back({gradient, {}, {}});
    }
    return incoming;
}

} // namespace

Incoming readIncomingText(std::string_view text, const std::string& source, const Progress& progress) {
    if (text.size() > longestIncoming) {
        return tooLong(source);
    }
    Incoming incoming;
    if (text.size() <= longestColor) {
        incoming.color = readCopiedColor(text);
    }
    if (!incoming.color) {
        Reading reading = readGradients(text, progress);
        if (reading.gradients.empty()) {
            return failed(failureOf(reading, source));
        }
        incoming.leftOut = leftOutOf(reading);
        incoming.gradients = std::move(reading.gradients);
    }
    return incoming;
}

Incoming readIncomingFile(const std::filesystem::path& file, const Progress& progress) {
    const std::string name = file.filename().string();
    std::error_code error;
    const auto type = std::filesystem::status(file, error).type();
    if (type == std::filesystem::file_type::not_found) {
        return failed(name + " does not exist");
    }
    if (!error && type != std::filesystem::file_type::regular) {
        return failed(name + " is no file");
    }
    const std::uintmax_t size = error ? 0 : std::filesystem::file_size(file, error);
    std::ifstream stream{file, std::ios::binary};
    if (error || !stream) {
        return failed(name + " cannot be read");
    }
    if (size > longestIncoming) {
        return tooLong(name);
    }
    const std::string text{std::istreambuf_iterator<char>{stream}, {}};
    return text.starts_with(databaseStart) ? readPresets(file, name) : readIncomingText(text, name, progress);
}

} // namespace tessaly
