#pragma once

#include "app/widgets/AppTab.h"

class EntityInvoiceMakanDitempat;
class QTableView;
class TableModelSelectSplitInvoice;

/** The page that lists the invoices of one order. The invoices are borrowed. */
class TabSelectSplitInvoice final : public AppTab
{
    Q_OBJECT

public:
    explicit TabSelectSplitInvoice(const QList<EntityInvoiceMakanDitempat*>& invoices, QWidget* parent = nullptr);

    /** Null if no row is selected. */
    [[nodiscard]] EntityInvoiceMakanDitempat* selectedInvoice() const;

signals:
    void chosen();

private:
    QTableView* m_grid;
    TableModelSelectSplitInvoice* m_model;
};
