#pragma once

#include <string>
#include <string_view>

namespace tessaly {

/// Text of CSS with its escapes resolved.
std::string withoutCssEscapes(std::string_view text);

/// A name as it is looked up: escapes resolved, letters of ASCII in lower case.
std::string cssName(std::string_view written);

/// Whether a name as written is `name`, which is in lower case and not empty.
bool isCssName(std::string_view written, std::string_view name);

/// Takes the prefix of a browser, "-webkit-", off the front of a name in lower case; false: it has none.
bool takeBrowserPrefix(std::string_view& name);

} // namespace tessaly
