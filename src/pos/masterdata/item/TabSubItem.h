#pragma once

#include "app/widgets/AppListTab.h"
#include "kor/entity/KorProperty.h"
#include "pos/masterdata/item/BusinessGroupedItem.h"
#include "pos/masterdata/item/DialogSubItem.h"
#include "pos/masterdata/item/TableModelGroupedItem.h"

/** The list of the components of one grouped item. As a page of a form it has no close button. */
class TabSubItem final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabSubItem(QWidget* parent = nullptr);

    /** Shows the components of this item; KorNoValue for an unsaved item, which has none. */
    void setParentItem(int id);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    void modelApplied() override;

private:
    int m_parentId = KorNoValue;
};
