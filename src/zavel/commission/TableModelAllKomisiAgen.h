#pragma once

#include "app/widgets/AppEntityModel.h"

#include <QHash>
#include <QIcon>

/** The invoices with an agent, with the commission of each. */
class TableModelAllKomisiAgen final : public AppEntityModel
{
    Q_OBJECT

public:
    static constexpr int Status = 6;

    TableModelAllKomisiAgen(const QList<KorEntity*>& sales, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QHash<int, QIcon> m_marks;
};
