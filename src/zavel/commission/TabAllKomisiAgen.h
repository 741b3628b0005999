#pragma once

#include "app/widgets/AppListTab.h"

class EntityAgent;
class EntityAllKomisiAgen;
class QComboBox;
class QDateEdit;
template <typename Entity>
class RecordField;

/** The invoices with an agent: the commission of each, and whether it was paid. "Pay" opens the commission form. */
class TabAllKomisiAgen final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabAllKomisiAgen(QWidget* parent = nullptr);

public slots:
    /** Pays the agent of the selected invoice, or opens the payment that already paid it. */
    void on_btnAdd_clicked() override;

protected:
    QList<KorEntity*> readRows(const QString&) override { return {}; }
    std::shared_ptr<FoundRows> openRows() override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    void modelApplied() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity*) const override { return {}; }
    bool insertEntity(KorEntity* entity) override;
    bool updateEntity(KorEntity* entity) override;

private:
    void pay(int agentId);
    void editPaymentOf(const EntityAllKomisiAgen& sale);

    QDateEdit* m_from;
    QDateEdit* m_to;
    QComboBox* m_status;
    RecordField<EntityAgent>* m_agent;
};
