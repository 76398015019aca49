#pragma once

#include <QAccessibleWidget>

namespace tessaly {

class WebLabel;

/// A link label as assistive tools see it: a link that can be pressed.
class WebLabelAccessible : public QAccessibleWidget {
  public:
    explicit WebLabelAccessible(WebLabel* label);

    /// Makes every link label known to assistive tools by this class; once is enough.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

  private:
    WebLabel* label() const;
};

} // namespace tessaly
