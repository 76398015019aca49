#include "exchange/CssReader.h"

#include "exchange/CssFinder.h"
#include "exchange/PageStyles.h"

namespace tessaly {

Reading readCssGradients(std::string_view text, const Progress& progress) {
    constexpr std::size_t mostBytes = 16U << 20U;
    const std::string_view read = text.substr(0, mostBytes);
    FoundGradients found;
    if (read.size() < text.size()) {
        found.setIncomplete();
    }
    ReadingProgress share{read.size(), progress};
    const bool isPage = PageStyles::isPage(read);
    if (!isPage) {
        CssFinder{read, found, share}.run();
    }
    share.startOver();
    if (isPage || found.empty()) { // a piece of a page may begin with its text
        PageStyles{read, found, share}.run();
    }
    return share.goesOn() ? std::move(found).taken() : Reading{};
}

} // namespace tessaly
