#pragma once

#include "codegen/PreviewFolder.h"
#include "foundation/FileState.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace tessaly {

class CodeText;
class WebView;

/// Keeps the two files that the preview shows: the page as it is at the start, and the stylesheet as its code
/// view has it.
class PreviewFiles {
  public:
    /// Both must outlive the object. The preview folder will be made in `temporaryDirectory`.
    PreviewFiles(const CodeText& stylesheet, WebView& webView, std::filesystem::path temporaryDirectory);

    /// Makes the preview folder, writes both files and loads the page. Without a folder there is no preview.
    void createHTMLIndexFile();

    /// Brings the stylesheet's file up to date and has it shown. A folder that somebody took away is made
    /// anew.
    void writeCSSFile();

    /// Whether the stylesheet's file is still the one that was written last.
    bool isAsWritten() const;

  private:
    void writeStylesheet();

    const CodeText& stylesheet_;
    WebView& webView_;
    std::filesystem::path temporaryDirectory_;
    std::unique_ptr<PreviewFolder> folder_;
    std::optional<FileState> written_; ///< the stylesheet's file; none: it could not be written
};

} // namespace tessaly
