#pragma once

#include "app/widgets/AppTab.h"

class EntityInvoiceDetail;
class QLabel;
class QTableView;
class TableModelBayarMakanDitempatDetail;

/** The page of the payment form that shows what is paid for. The lines belong to whoever sets them. */
class TabBayarMakanDitempatDetail final : public AppTab
{
    Q_OBJECT

public:
    explicit TabBayarMakanDitempatDetail(QWidget* parent = nullptr);

    [[nodiscard]] const QList<EntityInvoiceDetail*>& details() const { return m_details; }
    /** Whether a quantity was taken off a line and has no invoice of its own yet. */
    [[nodiscard]] bool hasPendingSplit() const;
    void setDetails(const QList<EntityInvoiceDetail*>& details);
    void focusGrid();

signals:
    void ItemAdded();

private:
    void refresh();

    QList<EntityInvoiceDetail*> m_details;
    QTableView* m_grid;
    QLabel* m_count;
    TableModelBayarMakanDitempatDetail* m_model = nullptr;
};
