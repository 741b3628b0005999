#pragma once

#include "pos/cash/settlement/SettlementTab.h"

#include <memory>

class EntityPartPayment;
class KorDialog;

/** The page of a payment form: the open documents, to be paid one by one or all at once. */
class PartPaymentsTab : public SettlementTab
{
    Q_OBJECT

public:
    explicit PartPaymentsTab(QWidget* parent) : SettlementTab("tblInvoice", parent) {}

    /** The lines with an amount; the others are only offered. */
    [[nodiscard]] QList<KorEntity*> paidLines() const;

protected:
    /** The form for the amount of one line. */
    [[nodiscard]] virtual std::unique_ptr<KorDialog> createDialog() = 0;

    void paySelected();
    void payAll();
};
