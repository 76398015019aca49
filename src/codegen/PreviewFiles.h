#pragma once

#include "codegen/PreviewFolder.h"
#include "foundation/FileState.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace tessaly {

class CodeText;
class WebView;

/// Keeps the two files that the preview shows: the page, written once, and the stylesheet, each the text of
/// its code view.
class PreviewFiles {
  public:
    /// The views must outlive the object. The preview folder will be made in `temporaryDirectory`.
    PreviewFiles(const CodeText& page, const CodeText& stylesheet, WebView& webView,
                 std::filesystem::path temporaryDirectory);

    /// Makes the preview folder, writes both files and loads the page. Without a folder there is no preview.
    void createHTMLIndexFile();

    /// Brings the stylesheet's file up to date and has it shown. A folder that somebody took away is made
    /// anew.
    void writeCSSFile();

    /// Whether the stylesheet's file is still the one that was written last.
    bool isAsWritten() const;

  private:
    void writeStylesheet();

    const CodeText& page_;
    const CodeText& stylesheet_;
    WebView& webView_;
    std::filesystem::path temporaryDirectory_;
    std::unique_ptr<PreviewFolder> folder_;
    std::optional<FileState> written_; ///< the stylesheet's file; none: it could not be written
};

} // namespace tessaly
