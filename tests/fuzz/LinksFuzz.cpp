// Any text of a link label, and any address put on one.

#include "FuzzTarget.h"
#include "chrome/LinkAddress.h"

#include <regex>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::regex prefix{"http://", std::regex::icase};
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto link = tessaly::LinkAddress::ofLabel(text);
    const bool found = std::regex_search(text, prefix);
    require(link.address == (found ? text : "http://" + text), "the prefix is put where there is none");
    require(link.logLine == (found ? "Found " : "Not Found ") + text, "the log tells which");
    const std::string label = tessaly::LinkAddress::labelText(text);
    const std::string start = text.starts_with("https://") ? "https://" : "";
    require(start + label + (text.size() > start.size() && text.ends_with('/') ? "/" : "") == text,
            "only scheme and slash go");
    return 0;
}
