#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperDataPerusahaan;
class DataMapperImages;
class EntityDataPerusahaan;

/** The service of the company profile and its logo. */
class BusinessDataPerusahaan final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { MANAGE_COMPANY };
    Q_ENUM(PERMISSIONS)

    BusinessDataPerusahaan(QObject* parent, DataMapperDataPerusahaan* mapper, DataMapperImages* images);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /** The profile with its logo, which it owns; null if none was entered yet. */
    [[nodiscard]] EntityDataPerusahaan* getData();
    /** Saves the profile and its logo in one transaction. */
    bool updateData(EntityDataPerusahaan* profile);

    /** The name of the logo in the table of pictures. */
    [[nodiscard]] static QString logoName() { return QStringLiteral("company_logo"); }

private:
    DataMapperDataPerusahaan* m_profiles;
    DataMapperImages* m_images;
};
