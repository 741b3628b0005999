#pragma once

class KorDataMapper;
class QString;

/** What the service of orders asks the mapper of purchases, which knows orders and so lies above them. */
class PurchasesOfOrders
{
public:
    virtual ~PurchasesOfOrders() = default;

    /** The number of a purchase that was made of the order; empty when there is none. */
    [[nodiscard]] virtual QString purchaseNo(int orderId) = 0;
    /** Whose errors tell of an answer that could not be read. */
    [[nodiscard]] virtual KorDataMapper* mapper() = 0;
};
