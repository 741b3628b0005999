#pragma once

#include <QAbstractTableModel>
#include <QStringList>

class QAction;

/** The rows of one category of the sidebar: the actions of a menu. */
class SidebarModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void addAction(const QString& text, QAction* action);
    /** Updates the texts after a change of the language. */
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

public slots:
    /** Triggers the action of the row. */
    void onSideBarItemClicked(const QModelIndex& index);

private:
    QStringList m_texts;
    QList<QAction*> m_actions;
};
