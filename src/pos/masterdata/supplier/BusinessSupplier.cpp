#include "pos/masterdata/supplier/BusinessSupplier.h"

#include "pos/masterdata/supplier/DataMapperSupplier.h"

BusinessSupplier::BusinessSupplier(QObject* parent, DataMapperSupplier* mapper)
    : AppMasterService("Supplier", mapper, parent), m_mapper(mapper)
{}

QList<KorPermission> BusinessSupplier::getPermissions() const
{
    return {{INSERT_SUPPLIER, tr("Insert supplier")},
            {UPDATE_SUPPLIER, tr("Update supplier")},
            {DELETE_SUPPLIER, tr("Delete supplier")}};
}

QList<KorEntity*> BusinessSupplier::findByFilter(const QString& text)
{
    return read(m_mapper->findByFilter(text), m_mapper, "findByFilter");
}
