#pragma once

#include "exchange/Reading.h"
#include "exchange/XmlHandler.h"

#include <string_view>

namespace tessaly {

enum class XmlEnd { Whole, Malformed, Cancelled };

/// Longest text that is read, in bytes.
inline constexpr std::size_t longestXml = std::size_t{16} << 20U;

/// Tells the handler what a document holds. UTF-8, whatever the document says of itself, UTF-16 with a
/// byte-order mark, or bytes as in Latin-1. Nothing is fetched, and a document that declares entities is
/// malformed. Of a text that is too long the beginning is read, and taken for whole.
XmlEnd readXml(std::string_view text, XmlHandler& handler, const Progress& progress);

} // namespace tessaly
