#include "pos/cash/settlement/PartPaymentsTab.h"

#include "app/money/MinorUnits.h"
#include "kor/widgets/KorDialog.h"
#include "pos/cash/settlement/EntityPartPayment.h"

QList<KorEntity*> PartPaymentsTab::paidLines() const
{
    QList<KorEntity*> paid;
    for (KorEntity* line : lines()) {
        if (static_cast<EntityPartPayment*>(line)->getAmountPaid()->rawAmount() != 0)
            paid.append(line);
    }
    return paid;
}

void PartPaymentsTab::payAll()
{
    for (KorEntity* entity : lines()) {
        auto* line = static_cast<EntityPartPayment*>(entity);
        const Money* due = line->getAmountDue();
        // Adds to an amount that was entered before.
        if (due->rawAmount() <= 0)
            continue;
        const double paid = double(line->getAmountPaid()->rawAmount()) + due->rawAmount();
        line->setAmountPaid(minorUnits(paid, due->getCurrency()).get());
        line->setAmountDue(minorUnits(0, due->getCurrency()).get());
    }
    linesChanged();
}

void PartPaymentsTab::paySelected()
{
    const QList<KorEntity*> selected = selectedLines();
    for (KorEntity* line : selected) {
        const auto dialog = createDialog();
        dialog->setEntity(line);
        if (dialog->exec() != QDialog::Accepted)
            break;
        dialog->getEntity();
        linesChanged();
    }
    focusGrid();
}
