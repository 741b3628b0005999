#pragma once

#include "app/widgets/AppListTab.h"

class QComboBox;
class QListWidget;

/** Shows and edits the rights of a user group, one service at a time. */
class TabUserAccess final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabUserAccess(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity*) const override { return {}; }
    [[nodiscard]] int editKey() const override { return 0; }
    [[nodiscard]] bool asksOnce(int) const override { return true; }
    KorEntity* readEntity(int id) override;
    bool updateEntity(KorEntity* entity) override;
    void edited() override;

private:
    void arrange();
    void fillChoices();
    void choiceChanged();
    [[nodiscard]] int groupId() const;

    QComboBox* m_groups;
    QListWidget* m_businesses;
    QHash<int, int> m_grants;
};
