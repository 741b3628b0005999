#pragma once

#include "zavel/order/OrderDialog.h"

class EntityMakanDitempat;
class EntityMeja;

/** The form of an order on a table: who sits where, and what they want. Another table in it moves the order there. */
class DialogMakanDitempat final : public OrderDialog
{
    Q_OBJECT

public:
    /** The table, if one is chosen already, stays the caller's and has to outlive the form. */
    explicit DialogMakanDitempat(QWidget* parent = nullptr, EntityMeja* table = nullptr);

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    /** Takes further lines for this open order, which outlives the form: its table and guest are not changed here. */
    void showOpenOrder(const EntityMakanDitempat& order);

public slots:
    /** The code names another table, or none. */
    void onTableSelected();

private:
    RecordField<EntityMeja>* m_table;
    // Where the order stands in the database, so that a save that failed leaves no trace of a move.
    EntityMeja* m_formerTable = nullptr;
    QString m_formerTrail;
};
