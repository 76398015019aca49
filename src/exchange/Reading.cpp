#include "exchange/Reading.h"

namespace tessaly {

void addPhrase(std::string& told, std::string_view phrase) {
    if (!told.empty() && !phrase.empty()) {
        told += "; ";
    }
    told += phrase;
}

std::string notesOf(const FoundGradient& found) {
    std::string told;
    for (const std::string& note : found.notes) {
        addPhrase(told, note);
    }
    return told;
}

} // namespace tessaly
