#pragma once

#include "codegen/DeclarationRanges.h"
#include "codegen/GradientDeclarations.h"
#include "codegen/PreviewFolder.h"
#include "foundation/Notification.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace tessaly {

class CodeText;
class WebView;

/// Keeps the stylesheet and page texts and the preview files current. The page is written once; the
/// stylesheet once whole, and from then on declaration by declaration, in place.
class WebCode {
  public:
    /// The views must outlive the object. The preview folder will be made in `temporaryDirectory`.
    WebCode(CodeText& htmlTextView, CodeText& css3TextView, WebView& webView,
            std::filesystem::path temporaryDirectory);

    void insertHTML5Code();
    void insertCSS3Code();

    /// Makes the preview folder, writes both files and loads the page. Without a folder there is no preview.
    void createHTMLIndexFile();

    /// Brings the stylesheet, its file and the preview up to date with the gradient.
    void updateBackgroundColorDataUpdatedNotification(const Notification& notification);

    void doUpdateBackgroundColorOldDataUpdatedNotification() { doUpdate(Declaration::Old); }
    void doUpdateBackgroundColorDataUpdatedNotification() { doUpdate(Declaration::Standard); }
    void doUpdateBackgroundColorMozDataUpdatedNotification() { doUpdate(Declaration::Moz); }
    void doUpdateBackgroundColorOldWebKitDataUpdatedNotification() { doUpdate(Declaration::OldWebKit); }
    void doUpdateBackgroundColorNewWebKitDataUpdatedNotification() { doUpdate(Declaration::NewWebKit); }
    void doUpdateBackgroundColorOperaDataUpdatedNotification() { doUpdate(Declaration::Opera); }
    void doUpdateBackgroundColorIEDataUpdatedNotification() { doUpdate(Declaration::IE); }
    void doUpdateBackgroundColorMSFilterDataUpdatedNotification() { doUpdate(Declaration::MSFilter); }

    /// The user, not this object, replaced `removed` units of the stylesheet text at `position` by `added`
    /// others. To be told of before the text changes again.
    void stylesheetEdited(std::size_t position, std::size_t removed, std::size_t added);

    void writeFile();
    void writeCSSFile();
    void writeHTMLFile();

    const GradientDeclarations& declarations() const { return declarations_; }
    const DeclarationRanges& ranges() const { return ranges_; }

    /// True while this object inserts text into a code view.
    bool shouldChangeTextInRange() const { return shouldChangeTextInRange_; }
    bool needToWriteCSSFile() const { return needToWriteCSSFile_; }
    bool needToWriteHTMLFile() const { return needToWriteHTMLFile_; }

    /// Path of the preview folder and of the page in it; empty without a folder.
    std::filesystem::path folderPath() const;
    std::filesystem::path htmlPath() const;

  private:
    void doUpdate(Declaration declaration);
    void keepLineFeedsApart(const DeclarationRanges& before, std::size_t typedAt);
    void findDeclarations(const DeclarationRanges& before, TextRange edited, std::size_t added,
                          std::u16string_view text);
    void forgetEdits();
    void beginInsertion(CodeText& view);
    void endInsertion(CodeText& view);

    CodeText& htmlTextView_;
    CodeText& css3TextView_;
    WebView& webView_;
    std::filesystem::path temporaryDirectory_;
    std::optional<PreviewFolder> folder_;
    GradientDeclarations declarations_;
    DeclarationRanges ranges_;
    /// The ranges in every text since the last update, by the text's hash: an undo brings back both.
    std::unordered_map<std::size_t, DeclarationRanges> rangesOfTexts_;
    bool shouldChangeTextInRange_ = true;
    bool needToWriteCSSFile_ = false;
    bool needToWriteHTMLFile_ = false;
};

} // namespace tessaly
