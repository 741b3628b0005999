#include "pos/masterdata/company/BusinessDataPerusahaan.h"

#include "kor/business/KorServiceTransaction.h"
#include "pos/masterdata/company/DataMapperDataPerusahaan.h"
#include "pos/masterdata/company/DataMapperImages.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"

BusinessDataPerusahaan::BusinessDataPerusahaan(QObject* parent, DataMapperDataPerusahaan* mapper,
                                               DataMapperImages* images)
    : KorBusinessLogic("Company Profile", mapper, parent), m_profiles(mapper), m_images(images)
{}

QList<KorPermission> BusinessDataPerusahaan::getPermissions() const
{
    return {{MANAGE_COMPANY, tr("Manage company info")}};
}

EntityDataPerusahaan* BusinessDataPerusahaan::getData()
{
    EntityDataPerusahaan* profile = read(m_profiles->findFirst(), m_profiles, "getData");
    if (!profile)
        return nullptr;
    EntityImage* logo = read(m_images->findByName(logoName()), m_images, "getData");
    if (logo)
        logo->setParent(profile);
    profile->setLogo(logo);
    return profile;
}

bool BusinessDataPerusahaan::updateData(EntityDataPerusahaan* profile)
{
    const int formerId = profile->getId();
    EntityImage* logo = profile->getLogo();
    const int formerLogoId = logo ? logo->getId() : KorNoValue;

    const bool done = inOneTransaction(*this, "updateData", [&] {
        const bool profileSaved = profile->isSaved() ? m_profiles->update(profile) : m_profiles->insert(profile);
        return written(profileSaved, m_profiles, "updateData") &&
               (!logo || written(m_images->save(logo), m_images, "updateData"));
    });
    if (!done) {
        profile->setId(formerId);
        if (logo)
            logo->setId(formerLogoId);
    }
    return done;
}
