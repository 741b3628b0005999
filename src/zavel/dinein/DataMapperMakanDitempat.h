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
     * The open orders, and with a status other than 0 those in it as well. A text narrows to the table of exactly
     * this code or name; it is compared as it comes with the lowered ones, so the caller lowers it, or does not.
     */
    [[nodiscard]] QList<EntityMakanDitempat*> getMakanDitempatList(int status, const QString& text);
    /** Inserts the order unless somebody sits at its table: asked and written under one lock of the table. */
    bool insertAtFreeTable(EntityMakanDitempat* order);
    /** Why the last of these was refused. */
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
