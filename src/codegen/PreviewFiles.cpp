#include "codegen/PreviewFiles.h"

#include "codegen/CodeText.h"
#include "codegen/PageText.h"
#include "codegen/WebView.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/Utf8.h"

#include <utility>

namespace tessaly {

PreviewFiles::PreviewFiles(const CodeText& stylesheet, WebView& webView,
                           std::filesystem::path temporaryDirectory)
    : stylesheet_{stylesheet}, webView_{webView}, temporaryDirectory_{std::move(temporaryDirectory)} {}

void PreviewFiles::createHTMLIndexFile() {
    std::unique_ptr<PreviewFolder> folder = PreviewFolder::create(temporaryDirectory_);
    if (folder == nullptr) {
        return;
    }
    folder_.swap(folder); // the one from before goes at the end
    const std::filesystem::path htmlPath = folder_->path() / PreviewFolder::pageName;
    folder_->write(PreviewFolder::pageName, pageText); // missing, it is not in place
    writeStylesheet();
    DiagnosticLog::write("htmlPath: " + htmlPath.native());
    webView_.loadFile(htmlPath);
}

void PreviewFiles::writeStylesheet() {
    const bool isWritten = folder_->write(PreviewFolder::stylesheetName, toUtf8(stylesheet_.text()));
    written_ = isWritten ? folder_->stateOf(PreviewFolder::stylesheetName) : std::nullopt;
}

void PreviewFiles::writeCSSFile() {
    if (folder_ && !folder_->isInPlace()) {
        createHTMLIndexFile(); // tried at each change until it can be done
        return;
    }
    if (folder_) {
        writeStylesheet();
    }
    webView_.reload();
}

bool PreviewFiles::isAsWritten() const {
    return !folder_ ||
           (written_ && folder_->isInPlace() && folder_->stateOf(PreviewFolder::stylesheetName) == written_);
}

} // namespace tessaly
