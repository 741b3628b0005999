#include "shell/database/converter/MasterSteps.h"

#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/agent/EntityAgent.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/employee/EntityEmployee.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/member/EntityMember.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "shell/database/converter/Conversion.h"

namespace
{
struct Words
{
    Q_DECLARE_TR_FUNCTIONS(MasterSteps)
};

QString joined(QStringList texts, const QString& separator)
{
    texts.removeAll(QString(""));
    return texts.join(separator);
}

QString named(const QString& label, const QString& text) { return text.isEmpty() ? text : label.arg(text); }

double percent(Conversion& run, double number)
{
    if (number >= 0 && number <= 100)
        return number;
    run.mend(Words::tr("a percentage outside of 0 to 100 became 0"));
    return 0;
}

/** A unique name for the unit. In the former system only the codes were unique. */
QString freeUnitName(Conversion& run, const QString& name, const QString& code)
{
    BusinessSatuan* units = run.services().units;
    QString fitted = Conversion::fitted(name, *units, "Nama");
    if (!units->find("nama", fitted))
        return fitted;
    run.mend(Words::tr("the unit's name was taken, its code has been put behind it"));
    return fitted.left(170) + " (" + code + ')';
}

/** Inserts a record unless its code already exists. */
template <class Service, class Entity>
void saveMaster(Conversion& run, Service* service, Entity& entity, const QString& code)
{
    if (code.isEmpty()) {
        run.skip(entity.getNama().isEmpty() ? Words::tr("row %1").arg(run.rows().read()) : entity.getNama(),
                 Words::tr("it has no code"));
        return;
    }
    entity.setKode(Conversion::fitted(code, *service, "Kode"));
    if (service->findByCode(entity.getKode())) {
        run.skip(code, Words::tr("the code exists already"));
        return;
    }
    if (entity.getKode() != code)
        run.mend(Words::tr("too long for \"%1\" and cut, in full \"%2\"").arg("kode", code));
    if (entity.getNama().isEmpty()) {
        run.mend(Words::tr("without a name, the code took its place"));
        entity.setNama(entity.getKode());
    }
    run.save(*service, entity, code);
}

/** Inserts a type or unit that an item refers to but that does not exist: every item needs both. */
template <class Service, class Entity>
Entity* added(Conversion& run, CodeBook<Entity>& known, Service* service, const QString& code, const QString& name)
{
    Entity missing;
    missing.setKode(Conversion::fitted(code, *service, "Kode"));
    missing.setNama(Conversion::fitted(name, *service, "Nama"));
    if (service->insert(&missing))
        run.mend(Words::tr("\"%1\" was missing and has been added (%2)").arg(code, service->name()));
    return known.find(code);
}

/** The code of the type or unit for an item that has none. */
QString orNone(const QString& code) { return code.isEmpty() ? QString("-") : code; }

EntityJenisItem* typeOf(Conversion& run, const LegacyRow& row)
{
    const QString code = row.text("jenisbrg");
    if (EntityJenisItem* type = run.itemTypes.find(code))
        return type;
    Conversion::log("item type null:" + row.text("kode"));
    if (EntityJenisItem* none = run.itemTypes.find(orNone(code)))
        return none;
    return added(run, run.itemTypes, run.services().itemTypes, orNone(code),
                 code.isEmpty() ? Words::tr("Without type") : code);
}

EntitySatuan* unitOf(Conversion& run, const LegacyRow& row)
{
    const QString code = row.text("satuan");
    if (EntitySatuan* unit = run.units.find(orNone(code)))
        return unit;
    const QString name = freeUnitName(run, code.isEmpty() ? Words::tr("Without unit") : code, orNone(code));
    return added(run, run.units, run.services().units, orNone(code), name);
}

EntityItem::ItemClass classOf(const QString& text)
{
    static const QStringList services{"2", "srv", "service", "jasa", "menu"};
    return services.contains(text.toLower()) ? EntityItem::SRV : EntityItem::INV;
}
} // namespace

namespace MasterSteps
{
void company(Conversion& run, const LegacyRow& row)
{
    BusinessDataPerusahaan* service = run.services().company;
    EntityDataPerusahaan fresh;
    EntityDataPerusahaan* stored = service->getData();
    const QString name = row.text("nama");
    if (name.isEmpty()) {
        run.skip(Words::tr("row %1").arg(run.rows().read()), Words::tr("it has no name"));
        return;
    }
    // Only the installer's profile is replaced; a higher version means that a user has edited it.
    if (stored && stored->getVersion() > 1) {
        run.skip(name, Words::tr("the company profile has been entered already"));
        return;
    }
    EntityDataPerusahaan& profile = stored ? *stored : fresh;
    profile.setNamaPerusahaan(name);
    profile.setAlamat(joined({row.text("alamat"), row.text("alamat2")}, ", "));
    profile.setTelp(row.text("telp"));
    profile.setNPWP(row.text("npwp"));
    profile.setTanggalPKP(row.text("tglpkp"));
    run.write(*service, profile, name, [&] { return service->updateData(&profile); });
}

void itemType(Conversion& run, const LegacyRow& row)
{
    EntityJenisItem type;
    type.setNama(row.text("keterangan"));
    saveMaster(run, run.services().itemTypes, type, row.text("kode"));
}

void unit(Conversion& run, const LegacyRow& row)
{
    const QString code = row.text("kode");
    EntitySatuan unit;
    unit.setNama(row.text("keterangan").isEmpty() ? code : row.text("keterangan"));
    if (!code.isEmpty() && !run.units.find(code))
        unit.setNama(freeUnitName(run, unit.getNama(), code));
    saveMaster(run, run.services().units, unit, code);
}

void supplier(Conversion& run, const LegacyRow& row)
{
    EntitySupplier supplier;
    supplier.setNama(row.text("supplier"));
    supplier.setAlamat(row.text("alamat"));
    supplier.setTelp(row.text("telp"));
    supplier.setNoRekAtasNama(row.text("atsnama"));
    supplier.setNotes(joined({named(Words::tr("Contact: %1"), row.text("kontak")), row.text("keterangan")}, "\n"));
    saveMaster(run, run.services().suppliers, supplier, row.text("kode"));
}

void member(Conversion& run, const LegacyRow& row)
{
    EntityMember member;
    member.setNama(row.text("nama"));
    member.setAlamat(row.text("alamat"));
    member.setTelp(row.text("notlp"));
    member.setEmail(row.text("email"));
    member.setDiscountPercentage(percent(run, row.number("diskon")));
    // The default of the form. Without an expiry date the member would get no discount.
    member.setExpiredDate(QDate::currentDate().addYears(1));
    saveMaster(run, run.services().members, member, row.text("barkode"));
}

void agent(Conversion& run, const LegacyRow& row)
{
    EntityAgent agent;
    agent.setNama(row.text("agent"));
    agent.setAlamat(row.text("alamat"));
    agent.setEmail(row.text("email"));
    agent.setCommisionPerc(percent(run, row.number("persen")));
    agent.setNotes(joined({named(Words::tr("Contact: %1"), row.text("kontak")), row.text("keterangan")}, "\n"));
    saveMaster(run, run.services().agents, agent, row.text("kode"));
}

void employee(Conversion& run, const LegacyRow& row)
{
    EntityEmployee employee;
    employee.setNama(row.text("nama").isEmpty() ? row.text("keterangan") : row.text("nama"));
    saveMaster(run, run.services().employees, employee, row.text("kode"));
}

void item(Conversion& run, const LegacyRow& row)
{
    EntityItem item;
    item.setNama(row.text("keterangan"));
    const QString code = row.text("kode");
    // Do not insert types or units for an item that will not be written.
    if (code.isEmpty() || run.items.find(code)) {
        saveMaster(run, run.services().items, item, code);
        return;
    }
    item.setJenis(typeOf(run, row));
    item.setSatuan(unitOf(run, row));
    item.setItemType(classOf(row.text("tipeitem")));
    item.setIsGroup(row.flag("rakitan"));
    item.setHargaBeli(run.money(row.number("hargabeli")));
    item.setHargaJualLokal(run.money(row.firstNumber({"hargajuallokal", "hargajual"})));
    if (row.number("hargajualluar") != 0)
        item.setHargaJualLuar(run.money(row.number("hargajualluar")));
    if (row.number("diskon") != 0)
        item.setNotes(Words::tr("Discount in the former system: %1").arg(row.text("diskon")));
    item.setSalesAcctCode("4050");
    item.setInventoryAcctCode("1200");
    item.setCostOfSalesAcctCode("5000");
    saveMaster(run, run.services().items, item, code);
}
} // namespace MasterSteps
