#include "chrome/qt/WebLabelAccessible.h"

#include "chrome/qt/WebLabel.h"

namespace tessaly {
namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* const label = qobject_cast<WebLabel*>(object);
    return label != nullptr ? new WebLabelAccessible{label} : nullptr;
}

} // namespace

WebLabelAccessible::WebLabelAccessible(WebLabel* label) : QAccessibleWidget{label, QAccessible::Link} {}

void WebLabelAccessible::install() {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeInterface), true);
}

QString WebLabelAccessible::text(QAccessible::Text kind) const {
    const QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && given.isEmpty() ? label()->text() : given;
}

QAccessible::State WebLabelAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.linked = true;
    return state;
}

QStringList WebLabelAccessible::actionNames() const {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void WebLabelAccessible::doAction(const QString& name) {
    if (name == pressAction()) {
        label()->openAddress();
    } else {
        QAccessibleWidget::doAction(name);
    }
}

WebLabel* WebLabelAccessible::label() const {
    return static_cast<WebLabel*>(widget());
}

} // namespace tessaly
