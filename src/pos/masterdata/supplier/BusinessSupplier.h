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
    /** The suppliers whose code or name contains the text, sorted by name; for lookup boxes. */
    [[nodiscard]] QList<KorEntity*> findByFilter(const QString& text);

private:
    DataMapperSupplier* m_mapper;
};
