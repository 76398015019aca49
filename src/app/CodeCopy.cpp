#include "app/CodeCopy.h"

#include "app/CopyButton.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "codegen/StandardText.h"
#include "document/Document.h"
#include "foundation/qt/ToQString.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/SourceView.h"

namespace tessaly {

CodeCopy::CodeCopy(Document& document, MainWindow& window) : document_{document}, window_{window} {}

void CodeCopy::copyShownText() {
    const MainWindow::Views& views = window_.views();
    if (window_.shownPage() == views.page) {
        copy(toQString(views.page->textView().text()), tr("page"));
    } else {
        copyStylesheet();
    }
}

void CodeCopy::copyStylesheet() {
    copy(toQString(window_.views().stylesheet->textView().text()), tr("stylesheet"));
}

void CodeCopy::copyStandardDeclaration() {
    const GlobalData& record = document_.record();
    copy(toQString(standardDeclarationText(record.gradient, record.colorFormatType)),
         tr("standard declaration"));
}

void CodeCopy::copyStandardValue() {
    const GlobalData& record = document_.record();
    copy(toQString(standardValueText(record.gradient, record.colorFormatType)), tr("standard value"));
}

void CodeCopy::copy(const QString& text, const QString& name) {
    window_.views().copy->copy(text);
    window_.views().message->say(tr("Copied the %1").arg(name));
}

} // namespace tessaly
