#pragma once

#include "app/persistence/AppMasterMapper.h"

class DataMapperBank;
class DataMapperJenisItem;
class DataMapperSatuan;
class KorPaging;

/** Items, in the table "item", read with their type, unit and ledger accounts. */
class DataMapperItem final : public AppMasterMapper
{
    Q_OBJECT

public:
    DataMapperItem(QObject* parent, DataMapperJenisItem* types, DataMapperSatuan* units, DataMapperBank* accounts);

    KorEntity* createEntity() override;
    bool createTable(int mode) override;
    [[nodiscard]] QStringList indexStatements() const override;

    // Search texts are read from the criteria by name: "kode" and "nama" are a part of the code or name.
    /** All classes; "jenis" is the code of an item type, or empty for all. */
    [[nodiscard]] QList<KorEntity*> search(const KorPaging& criteria);
    /** Items of the class "type"; "jenis" is the id of an item type, or "-1" for all. */
    [[nodiscard]] QList<KorEntity*> searchByType(const KorPaging& criteria);
    [[nodiscard]] QList<KorEntity*> searchServices(const KorPaging& criteria);

    /** The number of items with an amount in another currency; -1 with an error. */
    [[nodiscard]] int countOfOtherCurrency(const QString& sign);
    /** Runs two statements: call it in a transaction. */
    [[nodiscard]] bool restate(const QString& sign);

protected:
    [[nodiscard]] QString codeColumn() const override { return "item.kode"; }
    [[nodiscard]] QString nameColumn() const override { return "item.nama"; }

private:
    [[nodiscard]] QList<KorEntity*> searchClass(const KorPaging& criteria);
};
