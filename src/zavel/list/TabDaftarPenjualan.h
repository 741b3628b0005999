#pragma once

#include "app/widgets/AppListTab.h"

class EntityAgent;
class EntityEmployee;
class EntityMeja;
class EntityMember;
class EntityPenjualanInfo;
class QComboBox;
class QDateEdit;
class QLineEdit;
template <typename Entity>
class RecordField;
struct SalesFilter;

/** The list of the sales of all kinds: searches them, opens their payment form again, deletes them. */
class TabDaftarPenjualan final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabDaftarPenjualan(QWidget* parent = nullptr);

public slots:
    /** Clears the filters and sets both dates to today; the list changes only at the next search. */
    void on_btnReset_clicked();

protected:
    QList<KorEntity*> readRows(const QString&) override { return {}; }
    std::shared_ptr<FoundRows> openRows() override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    void modelApplied() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    [[nodiscard]] int editKey() const override;
    [[nodiscard]] int deleteKey() const override;
    [[nodiscard]] bool asksOnce(int) const override { return true; }
    /** The sale as the list shows it: deleting fails if somebody else has changed the sale since. */
    KorEntity* readEntity(int id) override;
    bool editEntity(KorEntity* sale) override;
    bool updateEntity(KorEntity* sale) override;
    bool removeEntity(KorEntity* sale) override;
    // Returns null: sales are created in the payment forms, not here.
    std::unique_ptr<KorDialog> createDialog() override;

private:
    void makeFilters();
    void makeButtons();
    [[nodiscard]] SalesFilter chosen() const;
    /** False when the cashier cancelled the form. */
    bool editFastFood(int invoiceId);
    /** Opens the payment form of the order with this invoice. */
    template <class Form>
    void editOrder(KorEntity* sale, int invoiceId);

    QLineEdit* m_no;
    QComboBox* m_status;
    QLineEdit* m_table;
    QComboBox* m_payment;
    QDateEdit* m_from;
    QDateEdit* m_to;
    QLineEdit* m_agent;
    QLineEdit* m_member;
    QLineEdit* m_guest;
    QLineEdit* m_employee;
    RecordField<EntityMeja>* m_tables;
    RecordField<EntityAgent>* m_agents;
    RecordField<EntityMember>* m_members;
    RecordField<EntityEmployee>* m_employees;
};
