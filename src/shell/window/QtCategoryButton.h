#pragma once

#include <QPushButton>

class QTreeWidget;
class QTreeWidgetItem;

/** A category of the sidebar. Pressing it opens this category and closes the others. */
class QtCategoryButton final : public QPushButton
{
    Q_OBJECT

public:
    QtCategoryButton(const QString& text, QTreeWidget* tree, QTreeWidgetItem* item, const QIcon& icon);

    /** The menu's title. The mnemonic stays with the menu. */
    void setTitle(const QString& title);

private slots:
    void ButtonPressed();

private:
    QTreeWidget* m_tree;
    QTreeWidgetItem* m_item;
};
