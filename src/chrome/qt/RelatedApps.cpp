#include "chrome/qt/RelatedApps.h"

#include "chrome/RelatedTools.h"
#include "chrome/TabNotification.h"
#include "chrome/qt/MainTabView.h"
#include "chrome/qt/WebAddressOpener.h"
#include "foundation/qt/ToQString.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

namespace tessaly {
namespace {

constexpr int space = 8;

QStringList tabTitles() {
    QStringList titles;
    std::ranges::transform(relatedTools, std::back_inserter(titles),
                           [](const RelatedToolGroup& group) { return toQString(group.title); });
    return titles;
}

QLabel* nameLabel(const QString& name) {
    auto* const label = new QLabel{name};
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QPushButton* pageButton(const RelatedTool& tool) {
    const QString address = toQString(tool.address);
    auto* const button = new QPushButton{RelatedApps::tr("Open Page")};
    button->setAutoDefault(false);
    button->setToolTip(address);
    button->setAccessibleName(RelatedApps::tr("Open page of %1").arg(toQString(tool.name)));
    QObject::connect(button, &QPushButton::clicked, [address] { WebAddressOpener::open(address); });
    return button;
}

// Two lines a tool, its button at the right of both.
QWidget* pageOf(const RelatedToolGroup& group) {
    auto* const page = new QWidget;
    auto* const grid = new QGridLayout{page};
    grid->setContentsMargins(3 * space, 2 * space, 3 * space, space);
    grid->setHorizontalSpacing(4 * space);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(0, 1);
    int row = 0;
    for (const RelatedTool& tool : group.tools) {
        grid->addWidget(nameLabel(toQString(tool.name)), row, 0);
        grid->addWidget(new QLabel{toQString(tool.purpose)}, row + 1, 0);
        grid->addWidget(pageButton(tool), row, 1, 2, 1, Qt::AlignVCenter);
        grid->setRowMinimumHeight(row + 2, 2 * space);
        row += 3;
    }
    grid->setRowStretch(row, 1);
    return page;
}

} // namespace

RelatedApps::RelatedApps(QWidget* mainWindow) : QDialog{mainWindow}, pages_{new QStackedWidget} {
    auto* const tabView = new MainTabView{tabTitles()};
    setWindowTitle(tr("Related Applications"));
    setWindowModality(Qt::WindowModal);
    tabView->setAccessibleName(windowTitle());
    for (const RelatedToolGroup& group : relatedTools) {
        pages_->addWidget(pageOf(group));
    }
    tabChange_ = NotificationCenter::defaultCenter().addObserver(
        tabNotification::selectIndexChanged, tabView, [this](const Notification& change) {
            pages_->setCurrentIndex(static_cast<int>(tabNotification::indexOf(change).value_or(0)));
        });

    auto* const close = new QPushButton{tr("&Close")};
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* const footer = new QHBoxLayout;
    footer->setContentsMargins(3 * space, 0, 3 * space, 2 * space);
    footer->addStretch();
    footer->addWidget(close);

    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(tabView);
    column->addWidget(pages_);
    column->addLayout(footer);
}

} // namespace tessaly
