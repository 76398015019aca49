#pragma once

#include <array>
#include <string_view>

namespace tessaly {

/// A free program that web authors may want beside this one.
struct RelatedTool {
    std::string_view name;
    std::string_view purpose;
    std::string_view address; ///< its page
};

/// One tab of the related applications.
struct RelatedToolGroup {
    std::string_view title;
    std::array<RelatedTool, 4> tools;
};

/// The first title is misspelt on purpose: it is the tab's name.
inline constexpr std::array<RelatedToolGroup, 2> relatedTools{{
    {"Deceloper Tools",
     {{{"Firefox Developer Edition", "Browser with inspectors for layout, style and speed",
        "https://www.mozilla.org/firefox/developer/"},
       {"VSCodium", "Editor for stylesheets, pages and scripts", "https://vscodium.com/"},
       {"Git", "Keeps every version of your site", "https://git-scm.com/"},
       {"Nu Html Checker", "Finds mistakes in pages and stylesheets",
        "https://validator.github.io/validator/"}}}},
    {"Utilities",
     {{{"FileZilla", "Puts your site on a server", "https://filezilla-project.org/"},
       {"Meld", "Compares and merges files and folders", "https://meldmerge.org/"},
       {"KeePassXC", "Keeps your passwords, encrypted", "https://keepassxc.org/"},
       {"OptiPNG", "Makes PNG pictures smaller without loss", "https://optipng.sourceforge.net/"}}}},
}};

} // namespace tessaly
