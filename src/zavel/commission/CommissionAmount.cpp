#include "zavel/commission/CommissionAmount.h"

#include "zavel/commission/EntityKomisiAgenDetail.h"

std::unique_ptr<Money> commissionOf(const Invoice& invoice, double percent)
{
    const std::unique_ptr<Money> share(invoice.getGrandTotal()->multiply(percent / 100));
    return std::make_unique<Money>(nullptr, share->getAmount(), share->getCurrency());
}

void setCommission(EntityKomisiAgenDetail* line, double percent)
{
    line->setCommisionPerc(percent);
    line->setCommision(commissionOf(*line->getInvoice(), percent).get());
}
