#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"

/** A lookup box for suppliers. */
class SupplierTextBox final : public AppEntityTextBox<EntitySupplier, BusinessSupplier>
{
    Q_OBJECT

public:
    SupplierTextBox(QLineEdit* editor, BusinessSupplier* suppliers)
        : AppEntityTextBox(editor, suppliers, {tr("Code"), tr("Name")})
    {}

protected:
    QList<KorEntity*> find(const QString& text) override { return service()->findByFilter(text); }
};
