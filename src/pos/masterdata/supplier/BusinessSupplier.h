#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/supplier/EntitySupplier.h"

class DataMapperSupplier;

/** The service of the suppliers. */
class BusinessSupplier final : public AppMasterService<EntitySupplier>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_SUPPLIER, UPDATE_SUPPLIER, DELETE_SUPPLIER };
    Q_ENUM(PERMISSIONS)

    BusinessSupplier(QObject* parent, DataMapperSupplier* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    /** The suppliers whose code or name holds the text, by name: what a lookup offers. */
    [[nodiscard]] QList<KorEntity*> findByFilter(const QString& text);

private:
    DataMapperSupplier* m_mapper;
};
