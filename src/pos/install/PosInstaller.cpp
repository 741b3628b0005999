#include "pos/install/PosInstaller.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/context/EntityPool.h"
#include "app/numbers/BusinessKey.h"
#include "app/numbers/EntityKey.h"
#include "app/registry/AppBusinessRegistry.h"
#include "kor/persistence/KorDataMapper.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/employee/EntityEmployee.h"
#include "pos/masterdata/item/BusinessGroupedItem.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/EntityGroupedItem.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/member/EntityMember.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "pos/printing/printer/BusinessPrinterType.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "pos/registry/PosMapperRegistry.h"

#include <QFile>

PosInstaller::PosInstaller(QObject* parent)
    : AppInstaller(parent), m_banks(PosBusinessRegistry::instance()->bank()),
      m_itemTypes(PosBusinessRegistry::instance()->jenisItem()), m_items(PosBusinessRegistry::instance()->item()),
      m_units(PosBusinessRegistry::instance()->satuan()), m_keys(AppBusinessRegistry::instance()->keyTable()),
      m_suppliers(PosBusinessRegistry::instance()->supplier()), m_members(PosBusinessRegistry::instance()->member()),
      m_groupedItems(PosBusinessRegistry::instance()->groupedItem()),
      m_employees(PosBusinessRegistry::instance()->employee()),
      m_printerTypes(PosBusinessRegistry::instance()->printerType()),
      m_company(PosBusinessRegistry::instance()->dataPerusahaan())
{}

void PosInstaller::addMappers()
{
    AppInstaller::addMappers();
    addAll(PosMapperRegistry::instance()->all());
}

void PosInstaller::registerPermissions()
{
    AppInstaller::registerPermissions();
    registerAll(PosBusinessRegistry::instance()->all());
}

void PosInstaller::insertInitialData()
{
    AppInstaller::insertInitialData();
    if (!isFresh()) {
        insertFurtherPrinterTypes();
        return;
    }
    setStatus(tr("POS Data"));
    insertCompany();
    insertAccounts();
    EntityJenisItem foods;
    EntitySatuan kilogram;
    insertItemTypes(foods);
    insertUnits(kilogram);
    insertSuppliers();
    insertItems(foods, kilogram);
    insertKeys();
    insertPeople();
    insertPrinterTypes();
    insertFurtherPrinterTypes();
    insertCashierPrinter();
}

void PosInstaller::insertCompany()
{
    EntityDataPerusahaan company;
    company.setNamaPerusahaan("Brintel");
    company.setAlamat("Sukamaju");
    company.setTelp("021-5550100");

    EntityImage logo;
    logo.setImageName(BusinessDataPerusahaan::logoName());
    QFile picture(":/images/brintel-200px.png");
    if (picture.open(QIODevice::ReadOnly)) {
        logo.setImageData(picture.readAll());
        company.setLogo(&logo);
    } else {
        reportFailure(picture.fileName() + tr(" error: ") + picture.errorString());
    }
    if (!m_company->updateData(&company))
        reportFailure(m_company->takeErrors());
}

void PosInstaller::insertAccounts()
{
    const auto insert = [this](const QString& code, const QString& name, AccountType type) {
        EntityBank account;
        account.setKode(code);
        account.setNama(name);
        account.setAccountType(type);
        insertRow(m_banks, &account);
    };
    insert("1010", tr("Cash on Hand"), CashAccount);
    insert("1020", tr("Checking Account"), CashAccount);
    insert("5000", tr("Cost of Sales"), CostOfSalesAccount);
    insert("1200", tr("Inventory"), InventoryAccount);
    insert("2000", tr("Accounts Payable"), AccountsPayableAccount);
    insert("1100", tr("Account Receivable"), AccountsReceivableAccount);
    insert("6650", tr("Commisions and Fees Expense"), ExpenseAccount);
    insert("4050", tr("Sales of Materials"), IncomeAccount);
}

void PosInstaller::insertItemTypes(EntityJenisItem& foods)
{
    foods.setKode("mkn");
    foods.setNama("Foods");
    insertRow(m_itemTypes, &foods);
    EntityJenisItem drinks;
    drinks.setKode("mnm");
    drinks.setNama("Drinks");
    insertRow(m_itemTypes, &drinks);
}

void PosInstaller::insertUnits(EntitySatuan& kilogram)
{
    kilogram.setKode("kg");
    kilogram.setNama("Kilogram");
    insertRow(m_units, &kilogram);
    EntitySatuan packs;
    packs.setKode("pcs");
    packs.setNama("Packs");
    insertRow(m_units, &packs);
}

void PosInstaller::fillContact(EntityContact& contact, const QString& code, const QString& name, const QString& address,
                               const QString& phone, const QString& email)
{
    contact.setKode(code);
    contact.setNama(name);
    contact.setAlamat(address);
    contact.setTelp(phone);
    contact.setEmail(email);
}

void PosInstaller::insertSuppliers()
{
    EntitySupplier first;
    fillContact(first, "SUP1", "PT Supplier 1", "Jl. Contoh 1, Sukamaju", "021-5550111", "supplier1@example.com");
    insertRow(m_suppliers, &first);
    EntitySupplier second;
    fillContact(second, "SUP2", "PT Supplier 2", "Jl. Contoh 2, Sukamaju", "021-5550112", "supplier2@example.com");
    insertRow(m_suppliers, &second);
}

void PosInstaller::insertItems(EntityJenisItem& type, EntitySatuan& unit)
{
    const auto insert = [&](EntityItem& item, const QString& code, const QString& name, int cost, int sales,
                            EntityItem::ItemClass itemClass) {
        item.setKode(code);
        item.setNama(name);
        item.setItemType(itemClass);
        item.setIsGroup(itemClass == EntityItem::SRV);
        item.setJenis(&type);
        item.setSatuan(&unit);
        item.setHargaBeli(new Money(&item, cost, QString()));
        item.setHargaJualLokal(new Money(&item, sales, QString()));
        item.setSalesAcctCode("4050");
        item.setInventoryAcctCode("1200");
        item.setCostOfSalesAcctCode("5000");
        insertRow(m_items, &item);
    };
    EntityItem chicken;
    EntityItem rice;
    EntityItem friedRice;
    EntityItem vegetables;
    insert(chicken, "aym", "Fried Chicken", 1, 2, EntityItem::INV);
    insert(rice, "ns", "Rice", 1, 2, EntityItem::INV);
    insert(friedRice, "fr", "Fried Rice", 3, 5, EntityItem::SRV);
    insert(vegetables, "llp", "Rice with fresh vegetables", 4, 6, EntityItem::SRV);

    const auto component = [&](EntityItem& item, int quantity) {
        EntityGroupedItem row;
        row.setParentItem(&friedRice);
        row.setOriginal(&item);
        row.setJumlah(quantity);
        insertRow(m_groupedItems, &row);
    };
    component(rice, 2);
    component(chicken, 1);
}

void PosInstaller::insertKey(const QString& name, const QString& description)
{
    EntityKey key;
    key.setKeyName(name);
    key.setFormat(name + "MMyy");
    key.setDescription(description);
    insertRow(m_keys, &key);
}

void PosInstaller::insertKeys()
{
    insertKey("PO", "Purchase Order Key");
    insertKey("NB", "Purchases Key");
    insertKey("NR", "Credit Note Key");
    insertKey("TPH", "Payment Key");
    insertKey("KK", "Cash Flow Key");
    insertKey("TR", "Accounting Transaction Key");
}

void PosInstaller::insertPeople()
{
    EntityMember member;
    fillContact(member, "m123", "member 1", "Jl. Contoh 3, Sukamaju", "021-5550121", "member1@example.com");
    insertRow(m_members, &member);
    EntityEmployee waitress;
    fillContact(waitress, "emp1", "Waitress 1", "Jl. Contoh 4, Sukamaju", "021-5550131", "waitress1@example.com");
    insertRow(m_employees, &waitress);
}

void PosInstaller::insertPrinterTypes()
{
    const auto insert = [this](const QString& name, const QString& drawer, const QString& cut) {
        m_printerType.setId(KorNoValue);
        m_printerType.setPrinterType(name);
        m_printerType.setCashDrawerCmd(drawer);
        m_printerType.setCutPapperCmd(cut);
        insertRow(m_printerTypes, &m_printerType);
    };
    insert("EPSON-TM-T88III", "27#112#0#25#250", "27#109");
    insert("EPSON-TM-U220", "27#112#0#25#250", "27#112#0#75#25");
    insert("GENERIC-ESC-POS", "27#112#0#60#120", "29#V#66#0");
}

void PosInstaller::insertFurtherPrinterTypes()
{
    // No zero bytes: a sequence is sent only up to its first one.
    const QList<QPair<QString, QString>> cuts{{"GENERIC-FEED-CUT", "29#V#66#1"},
                                              {"GENERIC-PARTIAL-CUT", "29#V#49"},
                                              {"GENERIC-FULL-CUT", "29#V#48"},
                                              {"GENERIC-ESC-I-CUT", "27#105"}};
    EntityPool pool;
    const EntityPoolScope scope(pool);
    QStringList known;
    const QList<EntityPrinterType*> all = m_printerTypes->getAll();
    for (const EntityPrinterType* type : all)
        known.append(type->getPrinterType());
    if (reportAny(m_printerTypes->takeErrors()))
        return;
    for (const auto& cut : cuts) {
        if (known.contains(cut.first))
            continue;
        // Not m_printerType: the settings of the first printers use the type in that record.
        EntityPrinterType type;
        type.setPrinterType(cut.first);
        type.setCashDrawerCmd("27#112#0#60#120");
        type.setCutPapperCmd(cut.second);
        insertRow(m_printerTypes, &type);
    }
}

void PosInstaller::fillPrinter(EntityConfigPrinter& printer, const QString& notes) const
{
    printer.setAutoCutter(EntityConfigPrinter::no());
    printer.setNotes(notes);
    printer.setNoOfCopy("1");
    printer.setColumnPaper("40");
    printer.setNoOfBlankLines("4");
    printer.setPrinterName(EntityConfigPrinter::installedName());
    printer.setPrinterType(m_printerType.getPrinterType());
}

void PosInstaller::insertCashierPrinter()
{
    EntityConfigCashierPrinter printer;
    fillPrinter(printer, tr("Thank You"));
    printer.setFormat(EntityConfigCashierPrinter::billTemplate());
    insertRow(m_configuration, &printer);
}
