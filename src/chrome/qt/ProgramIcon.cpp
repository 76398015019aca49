#include "chrome/qt/ProgramIcon.h"

#include <QString>

namespace tessaly {

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/icons/tessaly-%1.png").arg(size));
    }
    return icon;
}

} // namespace tessaly
