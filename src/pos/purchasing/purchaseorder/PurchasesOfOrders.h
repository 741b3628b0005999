#pragma once

class KorDataMapper;
class QString;

/** What the order service needs from the purchase mapper. An interface, because that mapper depends on orders. */
class PurchasesOfOrders
{
public:
    virtual ~PurchasesOfOrders() = default;

    /** The number of a purchase for the order; empty if there is none. */
    [[nodiscard]] virtual QString purchaseNo(int orderId) = 0;
    /** The mapper that has the error if purchaseNo() failed. */
    [[nodiscard]] virtual KorDataMapper* mapper() = 0;
};
