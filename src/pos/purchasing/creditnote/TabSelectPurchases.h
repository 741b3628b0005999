#pragma once

#include "pos/purchasing/document/SelectDocumentTab.h"

class EntitySupplier;
class QComboBox;
class QLineEdit;

/** All purchases of the supplier, latest first. The supplier is borrowed. */
class TabSelectPurchases final : public SelectDocumentTab
{
    Q_OBJECT

public:
    explicit TabSelectPurchases(const EntitySupplier* supplier, QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows() override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    [[nodiscard]] QList<int> columnWidths() const override { return {140, 150, 130, 130, 150}; }

private:
    const EntitySupplier* m_supplier;
    QComboBox* m_status;
    QLineEdit* m_text;
    QComboBox* m_field;
};
