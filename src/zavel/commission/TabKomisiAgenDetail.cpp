#include "zavel/commission/TabKomisiAgenDetail.h"

#include "zavel/commission/DialogSetPercentage.h"
#include "zavel/commission/TableModelKomisiAgenDetail.h"

#include <QPushButton>

TabKomisiAgenDetail::TabKomisiAgenDetail(QWidget* parent) : SettlementTab("tblInvoice", parent)
{
    setWidths({150, 120, 180, 160, 120});
    connect(addButton("btnSetPerc", tr("Set Percentage"), ":/icons/application_form_edit.png", "F2"),
            &QPushButton::clicked, this, &TabKomisiAgenDetail::on_btnSetPerc_clicked);
    connect(addButton("pushButton", tr("Remove Invoice"), ":/icons/delete.png", "Del"), &QPushButton::clicked, this,
            &TabKomisiAgenDetail::on_pushButton_clicked);
}

KorEntityModel* TabKomisiAgenDetail::createModel(const QList<KorEntity*>& lines)
{
    return new TableModelKomisiAgenDetail(lines, this);
}

void TabKomisiAgenDetail::on_pushButton_clicked()
{
    QList<KorEntity*> kept = lines();
    const QList<KorEntity*> selected = selectedLines();
    for (KorEntity* line : selected)
        kept.removeOne(line);
    setLines(kept);
    focusGrid();
}

void TabKomisiAgenDetail::on_btnSetPerc_clicked()
{
    const QList<KorEntity*> selected = selectedLines();
    for (KorEntity* line : selected) {
        DialogSetPercentage dialog(this);
        dialog.setEntity(line);
        if (dialog.exec() != QDialog::Accepted)
            break;
        dialog.getEntity();
        linesChanged();
    }
    focusGrid();
}
