#pragma once

#include <QList>
#include <QString>
#include <filesystem>
#include <functional>
#include <system_error>

class QWidget;

/// What every way of saving a file for the user shares: asking for the place, and telling what came of it.
namespace tessaly {

struct FileForm {
    QString title;  ///< such as "PNG picture"
    QString suffix; ///< without a dot
};

/// Asks for the place of a file, `name` and the first of the forms being proposed. A name without the suffix
/// of any form gets that of the one chosen from the list; `chosen` is told the place and the form's suffix.
void askForFile(QWidget& window, const QString& title, const QString& name, const QList<FileForm>& forms,
                const std::function<void(const std::filesystem::path& file, const QString& suffix)>& chosen);

/// One line for the user; `error` is why the file was not saved.
QString tellSaved(const std::filesystem::path& file, std::error_code error);

} // namespace tessaly
