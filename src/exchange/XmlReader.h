#pragma once

#include "exchange/ReadingProgress.h"
#include "exchange/XmlHandler.h"

#include <string_view>

namespace tessaly {

enum class XmlEnd {
    Whole,
    Malformed,
    Unfinished, ///< the text ended within it
    Cancelled
};

/// An element with all that is in it, as far as it could be read.
struct XmlElement {
    XmlEnd end;
    std::size_t place; ///< behind it, or where the mistake is; in bytes
};

/// Reads elements of a text in UTF-8, whatever it says of itself, or with bytes as in Latin-1. Nothing is
/// fetched; entities may be declared in a short document, and stand for a few characters.
class XmlReader {
  public:
    /// Both must outlive the reader. `isCut`: the text went on, so that an element need not end. `offset`:
    /// where the text begins in what the progress counts.
    XmlReader(std::string_view text, bool isCut, ReadingProgress& progress, std::size_t offset);

    /// Tells the handler what the element at `begin` holds, before which a prolog may stand.
    XmlElement read(std::size_t begin, XmlHandler& handler);

  private:
    std::string_view text_;
    bool isCut_;
    ReadingProgress& progress_;
    std::size_t offset_;
    const char* encoding_;
};

} // namespace tessaly
