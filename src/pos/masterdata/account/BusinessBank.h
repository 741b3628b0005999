#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/account/EntityBank.h"

class DataMapperBank;

/** The service of the ledger's accounts. */
class BusinessBank final : public AppMasterService<EntityBank>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_BANK, UPDATE_BANK, DELETE_BANK };
    Q_ENUM(PERMISSIONS)

    BusinessBank(QObject* parent, DataMapperBank* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    // The accounts that the program uses without a setting; the installer inserts them.
    [[nodiscard]] static QString cashOnHandCode() { return "1010"; }
    [[nodiscard]] EntityBank* cashOnHand() { return findByCode(cashOnHandCode()); }
    [[nodiscard]] EntityBank* checkingAccount() { return findByCode("1020"); }
    [[nodiscard]] EntityBank* accountReceivable() { return findByCode("1100"); }
    [[nodiscard]] EntityBank* inventory() { return findByCode("1200"); }
    [[nodiscard]] EntityBank* accountsPayable() { return findByCode("2000"); }
    [[nodiscard]] EntityBank* salesOfMaterials() { return findByCode("4050"); }
    [[nodiscard]] EntityBank* costOfSales() { return findByCode("5000"); }
    [[nodiscard]] EntityBank* commissionsExpense() { return findByCode("6650"); }
};
