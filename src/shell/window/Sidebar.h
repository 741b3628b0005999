#pragma once

#include <QList>
#include <QObject>

class QListView;
class QMenu;
class QtCategoryButton;
class QTreeWidget;
class SidebarModel;

/** Fills the main window's tree from the menus, one category per menu, so that both always match. */
class Sidebar final : public QObject
{
    Q_OBJECT

public:
    explicit Sidebar(QTreeWidget* tree);

    void addMenu(QMenu* menu, const QString& icon);
    /** Updates the texts after a change of the language. */
    void retranslate();

private:
    QListView* makeList(const QMenu* menu, SidebarModel* model) const;

    struct Category
    {
        QMenu* menu;
        QtCategoryButton* button;
        SidebarModel* model;
    };

    QTreeWidget* m_tree;
    QList<Category> m_categories;
};
