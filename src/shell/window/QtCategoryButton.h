#pragma once

#include <QPushButton>

class QTreeWidget;
class QTreeWidgetItem;

/** A category of the sidebar: pressing it leaves exactly this category open. */
class QtCategoryButton final : public QPushButton
{
    Q_OBJECT

public:
    QtCategoryButton(const QString& text, QTreeWidget* tree, QTreeWidgetItem* item, const QIcon& icon);

    /** The menu's title; its marked letter belongs to the menu alone. */
    void setTitle(const QString& title);

private slots:
    void ButtonPressed();

private:
    QTreeWidget* m_tree;
    QTreeWidgetItem* m_item;
};
