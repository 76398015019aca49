#pragma once

#include "exchange/Reading.h"
#include "foundation/NumberText.h"
#include "model/ColorConversion.h"

namespace tessaly {

/// "1 #ff0000 0, #0000ff/50 100 (note; note)": orientation, stops with opacity and position in percent.
inline std::string described(const FoundGradient& found) {
    std::string text = found.name.empty() ? "" : found.name + ": ";
    text += std::to_string(found.gradient.orientation());
    for (const ColorStop& stop : found.gradient.stops()) {
        text += &stop == &found.gradient.stops().front() ? " " : ", ";
        text += hexadecimalText(stop.color).value_or("none");
        text += stop.opacity < 1 ? "/" + percentText(stop.opacity) : "";
        text += " " + percentText(stop.position);
    }
    for (const std::string& note : found.notes) {
        text += &note == &found.notes.front() ? " (" : "; ";
        text += note;
    }
    return text + (found.notes.empty() ? "" : ")");
}

/// One line for each gradient.
inline std::string described(const Reading& reading) {
    std::string text;
    for (const FoundGradient& found : reading.gradients) {
        text += (text.empty() ? "" : "\n") + described(found);
    }
    return text + (reading.complete ? "" : " ...");
}

} // namespace tessaly
