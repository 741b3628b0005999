#pragma once

#include "app/widgets/AppTab.h"

class EntityInvoiceDetail;
class InvoiceLinesModel;
class QHBoxLayout;
class QLabel;
class QTableView;

/** The page of a payment form with the invoice's lines. The caller that sets the lines owns them. */
class InvoiceLinesTab : public AppTab
{
    Q_OBJECT

public:
    explicit InvoiceLinesTab(QWidget* parent = nullptr);

    [[nodiscard]] const QList<EntityInvoiceDetail*>& details() const { return m_details; }
    void setDetails(const QList<EntityInvoiceDetail*>& details);
    void focusGrid();

signals:
    /** Emitted when the lines have changed. */
    void ItemAdded();

protected:
    virtual InvoiceLinesModel* createModel(const QList<KorEntity*>& lines) = 0;
    [[nodiscard]] virtual QList<int> columnWidths() const;
    void refresh();
    [[nodiscard]] QList<EntityInvoiceDetail*> selectedLines() const;
    [[nodiscard]] QHBoxLayout* footer() const { return m_footer; }

private:
    QList<EntityInvoiceDetail*> m_details;
    QTableView* m_grid;
    QLabel* m_count;
    QHBoxLayout* m_footer;
    InvoiceLinesModel* m_model = nullptr;
};
