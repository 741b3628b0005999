#pragma once

#include "zavel/payment/InvoiceLinesTab.h"

#include <functional>

class QCheckBox;
class QPushButton;

/** The lines in the payment form of a table, from which quantities can be split off to separate invoices. */
class TabBayarMakanDitempatDetail final : public InvoiceLinesTab
{
    Q_OBJECT

public:
    explicit TabBayarMakanDitempatDetail(QWidget* parent = nullptr);

    /** Whether a quantity was split off a line and has no invoice of its own yet. */
    [[nodiscard]] bool hasPendingSplit() const;
    /** Shows the columns of the split-off quantities and the buttons for splitting. */
    void showSplit();

signals:
    void SplitInvoice();

public slots:
    void on_btnSplit_clicked();
    void on_btnProcessSplit_clicked();
    void on_btnDelSplit_clicked();
    void on_cbShowSplit_clicked();

protected:
    InvoiceLinesModel* createModel(const QList<KorEntity*>& lines) override;
    [[nodiscard]] QList<int> columnWidths() const override;

private:
    QPushButton* addButton(const QString& name, const QString& text, const QString& hint);
    /** False when the user cancelled the form; the remaining selected lines are then skipped. */
    bool splitLine(EntityInvoiceDetail* line);

    QCheckBox* m_showSplit;
    QList<QPushButton*> m_buttons;
};
