#pragma once

#include "app/widgets/AppListTab.h"

class EntityMember;
class EntityPiutang;
class QComboBox;
class QDateEdit;
template <typename Entity>
class RecordField;

/** The list of members' later payments. */
class TabPiutang final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabPiutang(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
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
    bool stands(bool done, const QString& operation, const EntityPiutang& payment);

    QDateEdit* m_from;
    QDateEdit* m_to;
    QComboBox* m_type;
    RecordField<EntityMember>* m_member;
};
