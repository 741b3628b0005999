#pragma once

#include "zavel/order/OrderDialog.h"

class EntityMakanDitempat;
class EntityMeja;

/** The form of an order on a table: table, guest and lines. Choosing another table moves the order. */
class DialogMakanDitempat final : public OrderDialog
{
    Q_OBJECT

public:
    /** The table may be null. It is borrowed and must outlive the form. */
    explicit DialogMakanDitempat(QWidget* parent = nullptr, EntityMeja* table = nullptr);

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    /** Adds lines to this open order; its table and guest cannot be changed here. The order must outlive the form. */
    void showOpenOrder(const EntityMakanDitempat& order);

public slots:
    /** The code of another table was entered, or the field was cleared. */
    void onTableSelected();

private:
    RecordField<EntityMeja>* m_table;
    // The stored table and its moves, set again before each save, so that a failed save does not record a move.
    EntityMeja* m_formerTable = nullptr;
    QString m_formerTrail;
};
