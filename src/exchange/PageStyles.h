#pragma once

#include "exchange/FoundGradients.h"
#include "exchange/ReadingProgress.h"

#include <string_view>

namespace tessaly {

/// Finds the gradients in the style elements and attributes of a page, in one run over it.
class PageStyles {
  public:
    /// Everything must outlive the object.
    PageStyles(std::string_view page, FoundGradients& found, ReadingProgress& progress)
        : page_{page}, found_{found}, progress_{progress} {}

    /// Whether a text is a page and no stylesheet.
    static bool isPage(std::string_view text);

    void run();

  private:
    bool readTag();
    bool readAttribute();
    bool readContent(std::string_view element);
    std::string_view readUntil(std::string_view end);
    std::string_view readName();
    std::string_view readAttributeValue();
    void passBlanks();
    char at(std::size_t place) const { return place < page_.size() ? page_[place] : '\0'; }

    std::string_view page_;
    FoundGradients& found_;
    ReadingProgress& progress_;
    std::size_t place_ = 0;
};

} // namespace tessaly
