#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/DialogItem.h"
#include "pos/masterdata/item/TableModelItem.h"

class QComboBox;

/** The list of items with today's stock. */
class TabItem final : public AppFamilyTab<BusinessItem, TableModelItem, DialogItem>
{
    Q_OBJECT

public:
    explicit TabItem(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    void modelApplied() override;

private:
    void fillTypes();

    QComboBox* m_types;
    bool m_sized = false;
};
