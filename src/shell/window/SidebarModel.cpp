#include "shell/window/SidebarModel.h"

#include <QAction>
#include <QFont>
#include <QSize>

void SidebarModel::addAction(const QString& text, QAction* action)
{
    beginInsertRows({}, m_texts.size(), m_texts.size());
    m_texts.append(text);
    m_actions.append(action);
    endInsertRows();
}

void SidebarModel::retranslate()
{
    if (m_actions.isEmpty())
        return;
    for (int row = 0; row < m_actions.size(); ++row)
        m_texts[row] = m_actions.at(row)->text();
    emit dataChanged(index(0, 0), index(m_texts.size() - 1, 0));
}

int SidebarModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_texts.size(); }

int SidebarModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 1; }

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_texts.size())
        return {};
    switch (role) {
    case Qt::DisplayRole: {
        const QString& text = m_texts.at(index.row());
        const int slash = text.indexOf('/');
        return "  " + (slash > 0 ? text.left(slash) : text);
    }
    case Qt::FontRole: {
        QFont font;
        font.setPixelSize(14);
        return font;
    }
    case Qt::SizeHintRole:
        return QSize(200, 24);
    default:
        return {};
    }
}

QVariant SidebarModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    Q_UNUSED(section)
    return role == Qt::SizeHintRole && orientation == Qt::Vertical ? QVariant(210) : QVariant();
}

void SidebarModel::onSideBarItemClicked(const QModelIndex& index)
{
    if (index.isValid() && index.row() < m_actions.size())
        m_actions.at(index.row())->activate(QAction::Trigger);
}
