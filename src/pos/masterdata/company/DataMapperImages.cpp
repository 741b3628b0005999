#include "pos/masterdata/company/DataMapperImages.h"

#include "app/context/AppContext.h"
#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/company/EntityImage.h"

DataMapperImages::DataMapperImages(QObject* parent) : AppDataMapper(parent)
{
    setName("images");
    metaData()->setTableName("images");
    column("image_name", "varchar(100) not null UNIQUE", "ImageName");
    column("image_data", "bytea not null", "ImageData");
}

KorEntity* DataMapperImages::createEntity() { return new EntityImage(entityParent()); }

EntityImage* DataMapperImages::findByName(const QString& name)
{
    if (name.isEmpty())
        return nullptr;
    return static_cast<EntityImage*>(findOne(KorConditions().equals("image_name", name)));
}

bool DataMapperImages::save(EntityImage* image)
{
    if (image->isSaved())
        return update(image);

    image->setCreatedBy(AppContext::instance()->currentUserId());
    KorQuery query;
    const bool done = execute(query,
                              "insert into images(createdBy,createdTime,version,image_name,image_data) values "
                              "(:createdBy,now(),:version,:image_name,:image_data) returning id",
                              {{":createdBy", image->getCreatedBy() == KorNoValue ? QVariant(QVariant::Int)
                                                                                  : QVariant(image->getCreatedBy())},
                               {":version", 1},
                               {":image_name", image->getImageName()},
                               {":image_data", image->getImageData()}});
    if (!done || !query.next())
        return false;
    image->setId(query.value(0).toInt());
    return true;
}
