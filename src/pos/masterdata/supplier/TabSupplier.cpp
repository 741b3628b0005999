#include "pos/masterdata/supplier/TabSupplier.h"

TabSupplier::TabSupplier(QWidget* parent) : AppFamilyTab({tr("Suppliers"), "tblSupplier", "Supplier"}, parent)
{
    refresh();
}

QString TabSupplier::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this supplier: %1 ?")
        .arg(static_cast<const EntitySupplier*>(entity)->getNama());
}
