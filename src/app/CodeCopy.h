#pragma once

#include <QObject>

namespace tessaly {

class Document;
class MainWindow;

/// Copies the code, in the form that a page needs, and says which.
class CodeCopy : public QObject {
    Q_OBJECT

  public:
    /// Both must outlive the object.
    CodeCopy(Document& document, MainWindow& window);

    void copyShownText();
    void copyStylesheet();
    // Of a gradient with stops.
    void copyStandardDeclaration();
    void copyStandardValue();

  private:
    void copy(const QString& text, const QString& name);

    Document& document_;
    MainWindow& window_;
};

} // namespace tessaly
