#pragma once

#include <QDialog>

class EntityInvoiceMakanDitempat;
class TabSelectSplitInvoice;

/** Lets the cashier choose one of an order's separate invoices. */
class DialogSelectSplitInvoice final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogSelectSplitInvoice(const QList<EntityInvoiceMakanDitempat*>& invoices, QWidget* parent = nullptr);

    [[nodiscard]] EntityInvoiceMakanDitempat* selectedInvoice() const;

    void accept() override;

private:
    TabSelectSplitInvoice* m_invoices;
};
