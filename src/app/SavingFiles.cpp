#include "app/SavingFiles.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>

namespace tessaly {
namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("tessaly::SavingFiles", text);
}

QString filterOf(const FileForm& form) {
    return form.title + QStringLiteral(" (*.") + form.suffix + u')';
}

} // namespace

void askForFile(QWidget& window, const QString& title, const QString& name, const QList<FileForm>& forms,
                const std::function<void(const std::filesystem::path& file, const QString& suffix)>& chosen) {
    QStringList filters(forms.size());
    std::ranges::transform(forms, filters.begin(), filterOf);
    auto* const dialog = new QFileDialog{&window, title};
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(filters);
    const auto suffixOf = [forms](const QString& filter) {
        return std::ranges::find(forms, filter, filterOf)->suffix;
    };
    const auto follow = [dialog, suffixOf](const QString& filter) {
        dialog->setDefaultSuffix(suffixOf(filter));
    };
    follow(filters.first());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, follow);
    const auto take = [&window, title, dialog, suffixOf, forms, chosen](const QString& path) {
        const QString suffix = QFileInfo{path}.suffix().toLower();
        if (std::ranges::find(forms, suffix, &FileForm::suffix) != forms.end()) {
            chosen(std::filesystem::path{path.toStdU16String()}, suffix);
            return;
        }
        const QString wanted = suffixOf(dialog->selectedNameFilter());
        const QString named = path + u'.' + wanted;
        if (QFileInfo::exists(named)) { // which nobody has been asked about
            askForFile(window, title, named, forms, chosen);
        } else {
            chosen(std::filesystem::path{named.toStdU16String()}, wanted);
        }
    };
    QObject::connect(dialog, &QFileDialog::fileSelected, &window, take);
    dialog->selectFile(name);
    dialog->open();
}

QString tellSaved(const std::filesystem::path& file, std::error_code error) {
    const QString name = QString::fromStdString(file.filename().string());
    return error ? translated("%1 was not saved: %2").arg(name, QString::fromStdString(error.message()))
                 : translated("Saved in %1").arg(name);
}

} // namespace tessaly
