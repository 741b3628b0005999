#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperKey;

/** The service of the running numbers. */
class BusinessKey final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { UPDATE_KEY = 2 };
    Q_ENUM(PERMISSIONS)

    BusinessKey(QObject* parent, DataMapperKey* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    /** Waits until documents that drew a number are saved, and blocks further draws meanwhile. */
    bool update(KorEntity* key) override;
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);

private:
    DataMapperKey* m_keys;
};
