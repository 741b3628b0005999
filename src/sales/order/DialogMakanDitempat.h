#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityMakanDitempat;
class EntityMeja;
class EntityMember;
class EntityOrderDetail;
class MemberTextBox;
class TabMakanDitempatDetail;
class TableTextBox;

namespace Ui
{
class DialogMakanDitempat;
}

/** The form of an order on a table: who sits where, and what they want. Another table in it moves the order there. */
class DialogMakanDitempat final : public KorDialog
{
    Q_OBJECT

public:
    /** The table, if one is chosen already, stays the caller's and has to outlive the form. */
    explicit DialogMakanDitempat(QWidget* parent = nullptr, EntityMeja* table = nullptr);
    ~DialogMakanDitempat() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    /** Takes further lines for this open order, which outlives the form: its table and guest are not changed here. */
    void showOpenOrder(const EntityMakanDitempat& order);

public slots:
    void onTableSelected();
    void onMemberSelected();
    void onItemAdded();
    void onTabItemSelected();

private:
    void showTable(EntityMeja* table);
    void showMember(EntityMember* member);
    // A code may be typed without being picked from the list; these look it up, and tell when it is none.
    void resolveTable();
    void resolveMember();

    std::unique_ptr<Ui::DialogMakanDitempat> m_ui;
    EntityPool m_found;
    TabMakanDitempatDetail* m_lines;
    TableTextBox* m_tableBox;
    MemberTextBox* m_memberBox;
    EntityMeja* m_table = nullptr;
    EntityMember* m_member = nullptr;
    // What the order has already, where further lines are taken for it.
    QList<EntityOrderDetail*> m_otherLines;
    // Where the order stands in the database, so that a save that failed leaves no trace of a move.
    EntityMeja* m_formerTable = nullptr;
    QString m_formerTrail;
};
