#include "shell/window/Sidebar.h"

#include "shell/window/QtCategoryButton.h"
#include "shell/window/SidebarModel.h"

#include <QListView>
#include <QMenu>
#include <QTreeWidget>

#include <algorithm>

namespace
{
/** The menu's entries; a sub-menu is replaced by its entries. */
QList<QAction*> entriesOf(const QMenu* menu)
{
    QList<QAction*> entries;
    const QList<QAction*> own = menu->actions();
    for (QAction* action : own) {
        if (action->menu())
            entries += action->menu()->actions();
        else if (!action->isSeparator())
            entries.append(action);
    }
    return entries;
}
} // namespace

Sidebar::Sidebar(QTreeWidget* tree) : QObject(tree), m_tree(tree)
{
    tree->setRootIsDecorated(false);
    tree->setIndentation(0);
    tree->setStyleSheet("background-color:#202020;");
}

void Sidebar::addMenu(QMenu* menu, const QString& icon)
{
    auto* category = new QTreeWidgetItem(m_tree);
    category->setBackground(0, QColor(32, 32, 32));
    auto* button = new QtCategoryButton(menu->title(), m_tree, category, QIcon(icon));
    m_tree->setItemWidget(category, 0, button);

    auto* model = new SidebarModel(this);
    const QList<QAction*> entries = entriesOf(menu);
    for (QAction* action : entries)
        model->addAction(action->text(), action);
    auto* child = new QTreeWidgetItem(category);
    child->setFlags(child->flags() & ~Qt::ItemIsEditable);
    m_tree->setItemWidget(child, 0, makeList(menu, model));
    m_categories.append({menu, button, model});
}

QListView* Sidebar::makeList(const QMenu* menu, SidebarModel* model) const
{
    auto* list = new QListView(m_tree);
    list->setModel(model);
    list->setFocusPolicy(Qt::NoFocus);
    list->setStyleSheet("background-color:#202020;color:#ffffff;border:none;");
    const QList<QAction*> own = menu->actions();
    const int entries =
        int(std::count_if(own.cbegin(), own.cend(), [](const QAction* action) { return !action->isSeparator(); }));
    list->setFixedHeight((entries == 0 ? 0 : entries + 2) * list->sizeHintForRow(0) + list->frameWidth());
    connect(list, &QListView::clicked, model, &SidebarModel::onSideBarItemClicked);
    return list;
}

void Sidebar::retranslate()
{
    for (const Category& category : qAsConst(m_categories)) {
        category.button->setTitle(category.menu->title());
        category.model->retranslate();
    }
}
