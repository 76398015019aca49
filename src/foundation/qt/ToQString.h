#pragma once

#include <QString>
#include <string_view>

namespace tessaly {

/// UTF-8 text as the toolkit's.
inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// UTF-16 text as the toolkit's.
inline QString toQString(std::u16string_view text) {
    return QStringView{text}.toString();
}

} // namespace tessaly
