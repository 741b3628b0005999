#include "shell/database/converter/Conversion.h"

#include "app/context/AppContext.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorDataMapper.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "pos/purchasing/document/PurchasingService.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "shell/database/converter/ConversionMark.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace
{
/** The maximum length of the column; 0 for no limit. */
int widthOf(const KorColumnMap& column)
{
    static const QRegularExpression varchar("varchar\\((\\d+)\\)");
    return varchar.match(column.sqlType()).captured(1).toInt();
}

QString cut(const QString& text, int width)
{
    if (width == 0 || text.size() <= width)
        return text;
    // Do not cut a surrogate pair.
    return text.left(text.at(width - 1).isHighSurrogate() ? width - 1 : width).trimmed();
}

double roundedHalfUp(double number) { return std::floor(number + 0.5); }
} // namespace

Conversion::Conversion(const ConversionServices& services, LegacySource& source, bool resumed)
    : accounts(services.accounts), itemTypes(services.itemTypes), units(services.units), suppliers(services.suppliers),
      items(services.items), m_services(services), m_source(source), m_resumed(resumed)
{}

void Conversion::log(const QString& line) { AppContext::log(line); }

void Conversion::beginTable(const QString& table, const QString& linesTable)
{
    m_rows = m_counts.size();
    m_counts.append(ConversionCount(table));
    if (!linesTable.isEmpty())
        m_counts.append(ConversionCount(linesTable));
}

void Conversion::beginRow()
{
    rows().countRead();
    m_mended.clear();
    m_tooLarge = false;
}

Money* Conversion::money(double amount)
{
    const double rounded = roundedHalfUp(amount);
    if (rounded != amount)
        mend(tr("amounts rounded to whole units"));
    auto* money = new Money(AppDataMapper::entityParent(), 0, QString());
    if (std::abs(rounded) * money->factor() > std::numeric_limits<int>::max())
        m_tooLarge = true;
    else
        money->setRawAmount(rounded * money->factor());
    return money;
}

int Conversion::whole(double number)
{
    const double rounded = roundedHalfUp(number);
    if (rounded != number)
        mend(tr("quantities rounded to whole numbers"));
    if (std::abs(rounded) <= std::numeric_limits<int>::max())
        return int(rounded);
    m_tooLarge = true;
    return 0;
}

void Conversion::mend(const QString& what)
{
    if (!m_mended.contains(what))
        m_mended.append(what);
}

QString Conversion::fitted(const QString& text, const KorBusinessLogic& service, const QString& property)
{
    for (const KorColumnMap* column : service.mapper()->metaData()->columns()) {
        if (column->propertyPath() == property)
            return cut(text, widthOf(*column));
    }
    return text;
}

void Conversion::fit(KorEntity& entity, const KorBusinessLogic& service)
{
    for (const KorColumnMap* column : service.mapper()->metaData()->columns()) {
        const QVariant held = entity.property(column->propertyPathUtf8());
        if (held.type() != QVariant::String)
            continue;
        const QString shortened = cut(held.toString(), widthOf(*column));
        if (shortened == held.toString())
            continue;
        entity.setProperty(column->propertyPathUtf8(), shortened);
        mend(tr("too long for \"%1\" and cut, in full \"%2\"").arg(column->columnName(), held.toString()));
    }
}

bool Conversion::write(KorBusinessLogic& service, KorEntity& entity, const QString& key,
                       const std::function<bool()>& write)
{
    // A look-up error does not mean that the record is missing: writing it now could create a duplicate.
    QString reason = takeErrors();
    if (m_tooLarge)
        reason = tr("an amount or a quantity is larger than the program can hold");
    bool done = false;
    if (reason.isEmpty()) {
        fit(entity, service);
        done = write();
        reason = takeErrors();
        const auto* documents = qobject_cast<PurchasingService*>(&service);
        if (!done && documents && documents->documentStands()) {
            done = true;
            mend(reason);
        }
    }
    if (done)
        settle(key);
    else
        skip(key, reason);
    return done;
}

QString Conversion::takeErrors()
{
    const QList<KorBusinessLogic*> all{m_services.company, m_services.accounts,  m_services.itemTypes,
                                       m_services.units,   m_services.suppliers, m_services.members,
                                       m_services.agents,  m_services.employees, m_services.items,
                                       m_services.orders,  m_services.purchases, m_services.payments};
    QString errors;
    for (KorBusinessLogic* service : all) {
        if (service->hasError())
            errors += service->takeErrors();
    }
    errors = errors.simplified();
    // A reopened connection does not hold the lock of the conversion: the former one was lost.
    if (!errors.isEmpty() && m_lost.isEmpty() && !ConversionMark::isClaimed())
        m_lost = errors;
    return errors;
}

void Conversion::settle(const QString& key)
{
    rows().countWritten();
    for (const QString& what : qAsConst(m_mended))
        rows().mend(key, what);
}
