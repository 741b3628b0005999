#pragma once

#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/order/DataMapperOrder.h"

class DataMapperMeja;

/** The orders on tables, in "makan_ditempat". */
class DataMapperMakanDitempat final : public DataMapperOrder
{
    Q_OBJECT

public:
    DataMapperMakanDitempat(QObject* parent, DataMapperMember* members, DataMapperMeja* tables,
                            const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /**
     * The open orders; with a status other than 0 also the orders in that status. A text matches the table with exactly
     * this code or name. It is compared with their lower-case form, so the caller has to pass it in lower case.
     */
    [[nodiscard]] QList<EntityMakanDitempat*> getMakanDitempatList(int status, const QString& text);
    /** Inserts the order unless its table has an open one. Check and insert run under a lock of the table's row. */
    bool insertAtFreeTable(EntityMakanDitempat* order);
    /** Whether the last insertAtFreeTable() was refused because the table has an open order. */
    [[nodiscard]] bool foundTableTaken() const { return m_foundTaken; }

protected:
    [[nodiscard]] QStringList locksOfInsert(const KorEntity& order) const override;
    bool beforeInsert(KorEntity* order) override;
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] QString statusFailure() const override;

private:
    DataMapperMeja* m_tables;
    bool m_asksForTable = false;
    bool m_foundTaken = false;
};
