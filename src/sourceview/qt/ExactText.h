#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tessaly {

/// The toolkit's documents keep a paragraph separator between two lines, and what they hand out as plain text
/// has blanks for no-break spaces and line feeds for line separators. These functions lose neither.

/// Text taken raw from a document, its lines ended by LF.
std::u16string exactText(QString raw);

/// As `text` comes back from a document that it is put into: CR, CR LF and PARAGRAPH SEPARATOR, and two code
/// points that are no characters and that documents use for themselves, end lines like LF.
std::u16string storedText(std::u16string_view text);

} // namespace tessaly
