#pragma once

#include "app/persistence/AppMasterMapper.h"

class DataMapperBank;
class DataMapperJenisItem;
class DataMapperSatuan;
class KorPaging;

/** Items, in the table "item", read with their type, their unit and the accounts that they are booked to. */
class DataMapperItem final : public AppMasterMapper
{
    Q_OBJECT

public:
    DataMapperItem(QObject* parent, DataMapperJenisItem* types, DataMapperSatuan* units, DataMapperBank* accounts);

    KorEntity* createEntity() override;
    bool createTable(int mode) override;
    [[nodiscard]] QStringList indexStatements() const override;

    // Each search takes its texts by name from the criteria: "kode" and "nama" hold a part of either.
    /** All classes; "jenis" is the code of an item type, empty for all. */
    [[nodiscard]] QList<KorEntity*> search(const KorPaging& criteria);
    /** One class, "type", of items; "jenis" is the id of an item type, "-1" for all. */
    [[nodiscard]] QList<KorEntity*> searchByType(const KorPaging& criteria);
    [[nodiscard]] QList<KorEntity*> searchServices(const KorPaging& criteria);

    /** Items with an amount in another currency than this sign; -1 with an error. */
    [[nodiscard]] int countOfOtherCurrency(const QString& sign);
    /** Two statements; the caller has a transaction around them. */
    [[nodiscard]] bool restate(const QString& sign);

protected:
    [[nodiscard]] QString codeColumn() const override { return "item.kode"; }
    [[nodiscard]] QString nameColumn() const override { return "item.nama"; }

private:
    [[nodiscard]] QList<KorEntity*> searchClass(const KorPaging& criteria);
};
