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

/** The data of a customer's bill. Owns no records. */
struct BillData
{
    const EntityDataPerusahaan* company = nullptr;
    const EntityConfigCashierPrinter* printer = nullptr;
    const Invoice* invoice = nullptr;
    QList<EntityInvoiceDetail*> lines;
    QString cashier;
    const EntityMember* member = nullptr;
    QString guest;
    /** Null for sales without a table; the bill then has no such line. */
    const EntityMeja* table = nullptr;
};

/** The three bills differ only in their labels. */
[[nodiscard]] QString composeDineBill(const BillData& bill);
[[nodiscard]] QString composeFastFoodBill(const BillData& bill);
[[nodiscard]] QString composeTakeAwayBill(const BillData& bill);

// Parts that all slips of the restaurant share.
void addCompany(SlipText& slip, const EntityDataPerusahaan& company, const QString& phoneLabel);
/** "-" for a guest who is not a member. */
[[nodiscard]] QString memberText(const EntityMember* member);
/** The date and time format of all slips. */
[[nodiscard]] inline QString slipTimeFormat() { return QStringLiteral("dd-MM-yyyy hh:mm:ss"); }
