#pragma once

#include <QList>
#include <QString>

class EntityConfigCashierPrinter;
class EntityDataPerusahaan;
class EntityInvoiceDetail;
class EntityMeja;
class EntityMember;
class Invoice;
class SlipText;

/** What stands on a customer's bill. All records are borrowed. */
struct BillData
{
    const EntityDataPerusahaan* company = nullptr;
    const EntityConfigCashierPrinter* printer = nullptr;
    const Invoice* invoice = nullptr;
    QList<EntityInvoiceDetail*> lines;
    QString cashier;
    const EntityMember* member = nullptr;
    QString guest;
    /** Sales without a table have no such line. */
    const EntityMeja* table = nullptr;
};

/** The three bills, which differ in their labels only. */
[[nodiscard]] QString composeDineBill(const BillData& bill);
[[nodiscard]] QString composeFastFoodBill(const BillData& bill);
[[nodiscard]] QString composeTakeAwayBill(const BillData& bill);

/** What the slips of the restaurant have in common. */
void addCompany(SlipText& slip, const EntityDataPerusahaan& company, const QString& phoneLabel);
/** "-" for a guest who is no member. */
[[nodiscard]] QString memberText(const EntityMember* member);
/** The date and time format of all slips. */
[[nodiscard]] inline QString slipTimeFormat() { return QStringLiteral("dd-MM-yyyy hh:mm:ss"); }
