#pragma once

#include "pos/printing/configuration/SlipReport.h"
#include "zavel/slips/BillText.h"

class EntityUser;
class IInvoice;

/** Base of the customers' bills: a paid or partly paid invoice on the cashier printer. */
class ReportBill : public SlipReport
{
    Q_OBJECT

public:
    bool print() override;

protected:
    ReportBill(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter, const IInvoice* sale,
               const EntityDataPerusahaan* company, const EntityUser* user, const EntityPrinterType* printerType);

    [[nodiscard]] virtual QString compose() const = 0;
    [[nodiscard]] const BillData& bill() const { return m_bill; }
    void setGuest(const QString& name, const EntityMember* member);
    void setTable(const EntityMeja* table) { m_bill.table = table; }

private:
    BillData m_bill;
};
