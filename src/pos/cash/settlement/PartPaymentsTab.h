#pragma once

#include "pos/cash/settlement/SettlementTab.h"

#include <memory>

class EntityPartPayment;
class KorDialog;

/** The page of a payment form: the open documents, to be paid one by one or all together. */
class PartPaymentsTab : public SettlementTab
{
    Q_OBJECT

public:
    explicit PartPaymentsTab(QWidget* parent) : SettlementTab("tblInvoice", parent) {}

    /** Those of which something is paid; the others are only on offer. */
    [[nodiscard]] QList<KorEntity*> paidLines() const;

protected:
    /** The form of one amount. */
    [[nodiscard]] virtual std::unique_ptr<KorDialog> createDialog() = 0;

    void paySelected();
    void payAll();
};
