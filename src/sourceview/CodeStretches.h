#pragma once

#include "sourceview/CodeStretch.h"

#include <string_view>
#include <vector>

namespace tessaly {

/// The stretches that begin or go on in a part of a text that starts where a line does, ascending, cut at the
/// part's end. Reads no more than some thousand units around the part, however long the text is: a tag, or a
/// comment, both of whose ends lie beyond is not known.
std::vector<CodeStretch> codeStretches(CodeLanguage language, std::u16string_view text, TextRange part);

} // namespace tessaly
