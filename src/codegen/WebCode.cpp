#include "codegen/WebCode.h"

#include "codegen/CodeText.h"
#include "codegen/PageText.h"
#include "codegen/WebView.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <span>
#include <utility>

namespace tessaly {
namespace {

TextRange within(TextRange range, std::size_t textLength) {
    const std::size_t location = std::min(range.location, textLength);
    return {location, std::min(range.length, textLength - location)};
}

TextRange startingFrom(TextRange range, std::size_t location) {
    const std::size_t start = std::max(range.location, location);
    return {start, std::max(range.end(), start) - start};
}

// Where `wanted` stands between `from` and the end of `text`, as near to `likely` as can be; nowhere is an
// empty range. The user may have written the same elsewhere.
TextRange find(const std::u16string& wanted, std::u16string_view text, std::size_t likely, std::size_t from) {
    constexpr std::size_t npos = std::u16string_view::npos;
    const std::size_t after = text.find(wanted, likely);
    const std::size_t before = text.rfind(wanted, likely);
    const bool isBefore = before != npos && before >= from && likely - before < after - likely;
    const std::size_t found = isBefore ? before : after;
    return found == npos ? TextRange{} : TextRange{found, wanted.size()};
}

constexpr std::hash<std::u16string_view> hashOf;

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
    forgetEdits();
}

void WebCode::createHTMLIndexFile() {
    std::optional<PreviewFolder> folder = PreviewFolder::create(temporaryDirectory_);
    if (!folder) {
        return;
    }
    folder_ = std::move(folder);
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
    forgetEdits();
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
    const std::u16string_view text = css3TextView_.text();
    const DeclarationRanges before = ranges_;
    ranges_.followEdit(position, removed, added);
    const auto [known, isNew] = rangesOfTexts_.try_emplace(hashOf(text), ranges_);
    if (!isNew) {
        ranges_ = known->second; // an undo or a redo has brought the text back
        return;
    }
    if (added > 0) {
        if (removed == 0 && text[position] == u'\n') {
            keepLineFeedsApart(before, position);
        }
        findDeclarations(before, {position, removed}, added, text);
        known->second = ranges_;
    }
}

void WebCode::forgetEdits() {
    rangesOfTexts_.clear();
    rangesOfTexts_.emplace(hashOf(css3TextView_.text()), ranges_);
}

// A line feed typed at the end of a declaration's last line, before the one that ends it, takes its place:
// what is typed next stands below the declaration and not in it.
void WebCode::keepLineFeedsApart(const DeclarationRanges& before, std::size_t typedAt) {
    for (const Declaration declaration : allDeclarations) {
        if (before[declaration].length > 0 && before[declaration].end() == typedAt + 1) {
            ranges_.place(declaration, before[declaration]);
        }
    }
}

// Text dragged elsewhere is reported as one edit of all between, and several undone steps may be: a
// declaration that the edit touched and that stands unchanged nearby keeps its place there.
void WebCode::findDeclarations(const DeclarationRanges& before, TextRange edited, std::size_t added,
                               std::u16string_view text) {
    const auto touched = [&](Declaration declaration) {
        const TextRange& old = before[declaration];
        return old.location <= edited.end() && edited.location <= old.end();
    };
    const auto first = std::find_if(allDeclarations.begin(), allDeclarations.end(), touched);
    const auto last = std::find_if_not(first, allDeclarations.end(), touched);
    if (first == last) {
        return;
    }
    const std::size_t limit = last == allDeclarations.end() ? text.size() : ranges_[*last].location;
    std::size_t from = first == allDeclarations.begin() ? 0 : ranges_[*std::prev(first)].end();
    for (const Declaration declaration : std::span{first, last}) {
        const std::u16string own{declarations_.text(declaration).begin(),
                                 declarations_.text(declaration).end()};
        const std::size_t old = before[declaration].location;
        const TextRange followed = startingFrom(ranges_[declaration], from);
        const bool wasInside = edited.location < old && old < edited.end();
        // The edit can have moved only what now stands in it or reaches into it.
        const std::size_t start = std::max(from, edited.location - std::min(edited.location, own.size()));
        const std::size_t end = std::min(limit, edited.location + added + own.size());
        const TextRange found =
            find(own, text.substr(0, end), std::max(wasInside ? old : followed.location, start), start);
        ranges_.place(declaration, found.length > 0 ? found : followed);
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
    if (folder_ && !folder_->isInPlace()) {
        createHTMLIndexFile(); // somebody took it away; tried at each change until it can be done
    } else {
        if (folder_) {
            folder_->write(PreviewFolder::stylesheetName, toUtf8(css3TextView_.text()));
        }
        webView_.reload();
    }
    css3TextView_.redisplay();
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
