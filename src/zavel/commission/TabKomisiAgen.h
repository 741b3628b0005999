#pragma once

#include "app/widgets/AppListTab.h"

class EntityAgent;
class QDateEdit;
class QLineEdit;
template <typename Entity>
class RecordField;

/** The list of commissions paid to agents. */
class TabKomisiAgen final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabKomisiAgen(QWidget* parent = nullptr);

public slots:
    void onAgentSelected();

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    void modelApplied() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    [[nodiscard]] int addKey() const override;
    [[nodiscard]] int editKey() const override;
    [[nodiscard]] int deleteKey() const override;
    [[nodiscard]] QString notFoundText(int id) const override;
    KorEntity* readEntity(int id) override;
    bool insertEntity(KorEntity* entity) override;
    bool updateEntity(KorEntity* entity) override;
    bool removeEntity(KorEntity* entity) override;

private:
    QDateEdit* m_from;
    QDateEdit* m_to;
    RecordField<EntityAgent>* m_agent;
    QLineEdit* m_number;
};
