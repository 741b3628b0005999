#pragma once

#include <QList>
#include <QObject>

class QListView;
class QMenu;
class QtCategoryButton;
class QTreeWidget;
class SidebarModel;

/** Fills the main window's tree with the menus, one category each, so that the two cannot differ. */
class Sidebar final : public QObject
{
    Q_OBJECT

public:
    explicit Sidebar(QTreeWidget* tree);

    void addMenu(QMenu* menu, const QString& icon);
    /** Follows the menus' texts after the language has changed. */
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
