#include "app/FoundGradientModel.h"

#include "foundation/qt/ToQString.h"
#include "presets/PresetSlotGeometry.h"
#include "presets/qt/PresetThumbnail.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

namespace tessaly {
namespace {

QString nameOf(const FoundGradient& found, int row) {
    return found.name.empty() ? FoundGradientModel::tr("Gradient %1").arg(row + 1) : toQString(found.name);
}

QPixmap thumbnailOf(const Gradient& gradient) {
    constexpr auto size = static_cast<int>(PresetSlotGeometry::thumbnailSize);
    const double ratio = qApp->devicePixelRatio();
    QPixmap pixmap{QSize{size, size} * ratio};
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    drawPresetThumbnail(painter, gradient, {});
    return pixmap;
}

} // namespace

int FoundGradientModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(gradients_.size());
}

QVariant FoundGradientModel::data(const QModelIndex& index, int role) const {
    const FoundGradient& found = gradients_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return found.notes.empty() ? nameOf(found, index.row())
                                   : nameOf(found, index.row()) + u'\n' + toQString(notesOf(found));
    case Qt::DecorationRole:
        return thumbnailOf(found.gradient);
    case Qt::ToolTipRole:
        return toQString(notesOf(found)).toHtmlEscaped(); // they carry words of the file
    case Qt::AccessibleDescriptionRole:
        return toQString(notesOf(found));
    case Qt::AccessibleTextRole:
        return nameOf(found, index.row());
    default:
        return {};
    }
}

} // namespace tessaly
