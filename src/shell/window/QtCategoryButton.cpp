#include "shell/window/QtCategoryButton.h"

#include <QTreeWidget>

QtCategoryButton::QtCategoryButton(const QString& text, QTreeWidget* tree, QTreeWidgetItem* item, const QIcon& icon)
    : QPushButton(tree), m_tree(tree), m_item(item)
{
    setTitle(text);
    setIcon(icon);
    setIconSize({32, 32});
    setFocusPolicy(Qt::NoFocus);
    setStyleSheet("QPushButton {text-align: left; padding:4px 10px; font-size:14px; "
                  "font-weight:bold;border:none;border-top:2px solid #373737; background-color:#323232; "
                  "color:#ffffff;cursor:pointer;}");
    connect(this, &QPushButton::pressed, this, &QtCategoryButton::ButtonPressed);
}

void QtCategoryButton::setTitle(const QString& title)
{
    setText(title);
    setShortcut({});
}

void QtCategoryButton::ButtonPressed()
{
    // Collapsing all first means that the button always opens its own category.
    m_tree->collapseAll();
    m_item->setExpanded(!m_item->isExpanded());
}
