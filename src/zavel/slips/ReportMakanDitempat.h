#pragma once

#include "pos/printing/configuration/SlipReport.h"

class EntityConfigCashierPrinter;
class EntityDataPerusahaan;
class EntityMakanDitempat;
class EntityUser;

/** The summary of a table's order on the cashier printer. */
class ReportMakanDitempat final : public SlipReport
{
    Q_OBJECT

public:
    ReportMakanDitempat(QObject* parent, const EntityConfigCashierPrinter* cashierPrinter,
                        const EntityMakanDitempat* order, const EntityDataPerusahaan* company, const EntityUser* user,
                        const EntityPrinterType* printerType);

    bool print() override;

private:
    const EntityConfigCashierPrinter* m_cashierPrinter;
    const EntityMakanDitempat* m_order;
    const EntityDataPerusahaan* m_company;
};
