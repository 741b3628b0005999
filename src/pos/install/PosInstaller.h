#pragma once

#include "app/install/AppInstaller.h"
#include "pos/printing/printer/EntityPrinterType.h"

class BusinessBank;
class BusinessDataPerusahaan;
class BusinessEmployee;
class BusinessGroupedItem;
class BusinessItem;
class BusinessJenisItem;
class BusinessKey;
class BusinessMember;
class BusinessPrinterType;
class BusinessSatuan;
class BusinessSupplier;
class EntityConfigPrinter;
class EntityContact;
class EntityJenisItem;
class EntitySatuan;

/** Installs what any shop needs: accounts, items, running numbers, printer types and sample data. */
class PosInstaller : public AppInstaller
{
    Q_OBJECT

public:
    explicit PosInstaller(QObject* parent = nullptr);

    void addMappers() override;
    void insertInitialData() override;
    void registerPermissions() override;

protected:
    /** Inserts a running number whose format is its name, the month and the year. */
    void insertKey(const QString& name, const QString& description);
    static void fillContact(EntityContact& contact, const QString& code, const QString& name, const QString& address,
                            const QString& phone, const QString& email);
    /** Fills in what the cashier's and the kitchens' printers have in common. */
    void fillPrinter(EntityConfigPrinter& printer, const QString& notes) const;

private:
    void insertCompany();
    void insertAccounts();
    void insertItemTypes(EntityJenisItem& foods);
    void insertUnits(EntitySatuan& kilogram);
    void insertSuppliers();
    void insertItems(EntityJenisItem& type, EntitySatuan& unit);
    void insertKeys();
    void insertPeople();
    void insertPrinterTypes();
    /** Inserts the missing types; also called when a database is updated. */
    void insertFurtherPrinterTypes();
    void insertCashierPrinter();

    BusinessBank* const m_banks;
    BusinessJenisItem* const m_itemTypes;
    BusinessItem* const m_items;
    BusinessSatuan* const m_units;
    BusinessKey* const m_keys;
    BusinessSupplier* const m_suppliers;
    BusinessMember* const m_members;
    BusinessGroupedItem* const m_groupedItems;
    BusinessEmployee* const m_employees;
    BusinessPrinterType* const m_printerTypes;
    BusinessDataPerusahaan* const m_company;
    // The type inserted last; the first printers use it.
    EntityPrinterType m_printerType;
};
