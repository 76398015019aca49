#pragma once

#include <string_view>

namespace tessaly {

/// The page that shows the gradient in one box. It never changes, and its title is deliberately that of the
/// page people have always copied.
inline constexpr std::string_view pageText =
    "<!DOCTYPE html>\n"
    "<html lang=\"en\">\n"
    "<head>\n"
    "\t<meta charset=\"utf-8\">\n"
    "\t<link rel=\"stylesheet\" type=\"text/css\" href=\"styles.css\" media=\"screen\" />\n"
    "\t<title>My Button</title>\n"
    "</head>\n"
    "<body>\n"
    "\t<div class=\"gradient\">\n"
    "\t</div>\n"
    "</body>\n"
    "</html>\n";

} // namespace tessaly
