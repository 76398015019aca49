#include "chrome/qt/WebLabelAccessible.h"

#include "chrome/qt/WebLabel.h"

#include <QAccessibleWidget>

namespace tessaly {
namespace {

class WebLabelAccessible : public QAccessibleWidget {
  public:
    explicit WebLabelAccessible(WebLabel& label)
        : QAccessibleWidget{&label, QAccessible::Link}, label_{label} {}

    QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? label_.text() : given;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.linked = true;
        return state;
    }

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == pressAction()) {
            label_.openAddress();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    WebLabel& label_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* const label = qobject_cast<WebLabel*>(object);
    return label != nullptr ? new WebLabelAccessible{*label} : nullptr;
}

} // namespace

void installWebLabelAccessible() {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeInterface), true);
}

} // namespace tessaly
