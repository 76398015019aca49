#include "codegen/WebCode.h"

#include "codegen/CodeText.h"
#include "codegen/PageText.h"
#include "codegen/WebView.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

TextRange within(TextRange range, std::size_t textLength) {
    const std::size_t location = std::min(range.location, textLength);
    return {location, std::min(range.length, textLength - location)};
}

} // namespace

WebCode::WebCode(CodeText& htmlTextView, CodeText& css3TextView, WebView& webView,
                 std::filesystem::path temporaryDirectory)
    : htmlTextView_{htmlTextView},
      css3TextView_{css3TextView},
      webView_{webView},
      temporaryDirectory_{std::move(temporaryDirectory)} {}

void WebCode::beginInsertion(CodeText& view) {
    shouldChangeTextInRange_ = true;
    view.setEditable(true);
    view.setSelection({0, 0});
}

void WebCode::endInsertion(CodeText& view) {
    view.moveToBeginningOfDocument();
    shouldChangeTextInRange_ = false;
}

void WebCode::insertHTML5Code() {
    beginInsertion(htmlTextView_);
    for (const std::string_view line : pageLines) {
        htmlTextView_.insertText(line);
    }
    endInsertion(htmlTextView_);
}

void WebCode::insertCSS3Code() {
    for (const Declaration declaration : allDeclarations) {
        declarations_.construct(declaration);
    }
    css3TextView_.setText("");
    beginInsertion(css3TextView_);
    css3TextView_.insertText(".gradient {\n");
    css3TextView_.insertText("\theight: 236px;\n");
    std::size_t index = css3TextView_.length();
    DiagnosticLog::write("backgroundColorOldText: " + declarations_.backgroundColorOldText());
    for (const Declaration declaration : allDeclarations) {
        const std::string& text = declarations_.text(declaration);
        css3TextView_.insertText(text);
        ranges_.place(declaration, {index, text.size()});
        index += text.size();
    }
    css3TextView_.insertText("}\n");
    endInsertion(css3TextView_);
}

void WebCode::createHTMLIndexFile() {
    folder_ = PreviewFolder::create(temporaryDirectory_);
    if (!folder_) {
        return;
    }
    GlobalData::sharedData().setTempFolderPath(folderPath().native());
    folder_->write(PreviewFolder::pageName, toUtf8(htmlTextView_.text()));
    folder_->write(PreviewFolder::stylesheetName, toUtf8(css3TextView_.text()));
    DiagnosticLog::write("htmlPath: " + htmlPath().native());
    webView_.loadFile(htmlPath());
}

void WebCode::updateBackgroundColorDataUpdatedNotification(const Notification& /*notification*/) {
    for (const Declaration declaration : allDeclarations) {
        doUpdate(declaration);
    }
    writeFile();
}

void WebCode::doUpdate(Declaration declaration) {
    // The recorded range is cut to the text, whatever happened to it behind our back.
    const TextRange range = within(ranges_[declaration], css3TextView_.length());
    ranges_.place(declaration, range);
    declarations_.construct(declaration);
    const std::string& text = declarations_.text(declaration);
    css3TextView_.replaceCharacters(range, text);
    ranges_.resize(declaration, text.size());
    needToWriteCSSFile_ = true;
}

void WebCode::stylesheetEdited(std::size_t position, std::size_t removed, std::size_t added) {
    const DeclarationRanges before = ranges_;
    ranges_.followEdit(position, removed, added);
    if (removed == 0 || added == 0) {
        return;
    }
    // A view may report several edits as one that spans them all (text dragged to another place, an undo). A
    // declaration that stands unchanged in the replaced stretch keeps its place there.
    const std::u16string text = css3TextView_.text();
    std::size_t from = position;
    for (const Declaration declaration : allDeclarations) {
        const TextRange& old = before[declaration];
        if (old.end() < position || old.location >= position + removed) {
            continue;
        }
        const std::string& own = declarations_.text(declaration);
        from = std::min(from, ranges_[declaration].location);
        const std::size_t found = text.find(std::u16string(own.begin(), own.end()), from);
        if (found != std::u16string::npos && found + own.size() <= position + added) {
            ranges_.place(declaration, {found, own.size()});
        } else if (ranges_[declaration].length == 0) {
            ranges_.place(declaration, {from, 0});
        }
        from = ranges_[declaration].end();
    }
}

void WebCode::writeFile() {
    if (needToWriteCSSFile_) {
        writeCSSFile();
    }
    if (needToWriteHTMLFile_) {
        writeHTMLFile();
    }
}

void WebCode::writeCSSFile() {
    if (folder_) {
        folder_->write(PreviewFolder::stylesheetName, toUtf8(css3TextView_.text()));
    }
    css3TextView_.redisplay();
    webView_.reload();
    webView_.redisplay();
}

void WebCode::writeHTMLFile() {
    if (folder_) {
        folder_->write(PreviewFolder::pageName, toUtf8(htmlTextView_.text()));
    }
    webView_.reload();
    webView_.redisplay();
}

std::filesystem::path WebCode::folderPath() const {
    return folder_ ? folder_->path() : std::filesystem::path{};
}

std::filesystem::path WebCode::htmlPath() const {
    return folder_ ? folder_->path() / PreviewFolder::pageName : std::filesystem::path{};
}

} // namespace tessaly
