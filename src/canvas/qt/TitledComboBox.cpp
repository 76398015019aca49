#include "canvas/qt/TitledComboBox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

namespace tessaly {
namespace {

// The toolkit gives assistive tools the chosen title as the name of a list on this desktop; here the name is
// the list's own, as that of every other control, and the chosen title its value.
class TitledComboBoxAccessible : public QAccessibleWidget {
  public:
    explicit TitledComboBoxAccessible(TitledComboBox& comboBox)
        : QAccessibleWidget{&comboBox, QAccessible::ComboBox}, comboBox_{comboBox} {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? comboBox_.currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = comboBox_.view()->isVisible();
        return state;
    }
    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == showMenuAction()) {
            comboBox_.showPopup();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

  private:
    TitledComboBox& comboBox_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* const comboBox = qobject_cast<TitledComboBox*>(object);
    return comboBox != nullptr ? new TitledComboBoxAccessible{*comboBox} : nullptr;
}

} // namespace

TitledComboBox::TitledComboBox(QWidget* parent) : QComboBox{parent} {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeInterface), true);
}

} // namespace tessaly
