#pragma once

#include "app/context/EntityPool.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/slips/OrderText.h"

#include <QList>

class BusinessPenjualan;
class EntityConfigCashierPrinter;
class EntityConfigKitchenPrinter;
class EntityDataPerusahaan;
class EntityPrinterType;
class EntityUser;
class KorBusinessLogic;

/**
 * Composes the bills and slips that screens ask for. Each request reads company, printers and printer type anew, so
 * that a change at one till counts at all of them at once.
 */
class ZavelReportFactory final : public SlipRequests
{
    Q_OBJECT

public:
    static ZavelReportFactory* instance();

    void printBillMakanDitempat(int invoiceId) override;
    void printBillFastFood(int invoiceId) override;
    void printBillBawaPulang(int invoiceId) override;
    void printMakanDitempat(int orderId) override;
    void printMenuOrder(OrderKind kind, EntityOrder* order) override;
    void reprintMenuOrder(OrderKind kind, EntityOrder* order) override;
    void printMenuOrderChange(OrderKind kind, EntityOrder* order, const QString& formerTable) override;
    void printMenuOrderCanceled(OrderKind kind, EntityOrder* order, CancelTo to = AllKitchens) override;

private:
    explicit ZavelReportFactory(QObject* parent);

    /** False, after telling why, where the settings cannot be read. */
    bool reload();
    /** False, after telling why, where what every slip of the cashier needs is missing. */
    bool readyForCashier();
    template <class Report, class Sale>
    void printBill(Sale* (BusinessPenjualan::*find)(int), int invoiceId);
    using Kitchens = QList<EntityConfigKitchenPrinter*>;
    [[nodiscard]] Kitchens kitchensThatPrintByThemselves() const;
    /** The sentence says what stands although a slip fails. */
    template <class Report>
    void printForKitchens(const Kitchens& kitchens, OrderKind kind, const EntityOrder* order, const QString& standing);
    void printChange(const Kitchens& kitchens, OrderKind kind, const EntityOrder* order, const KitchenSlipComposer&);
    [[nodiscard]] static QString orderIsSaved();
    [[nodiscard]] EntityUser* findUser(int id);
    /** Shows in one box what the services could not read; true when there was something. */
    /** False for an empty text, which shows nothing. */
    bool showError(const QString& text);

    // What the last request read; the next one frees it.
    EntityPool m_records;
    EntityDataPerusahaan* m_company = nullptr;
    EntityConfigCashierPrinter* m_cashierPrinter = nullptr;
    Kitchens m_kitchenPrinters;
    EntityPrinterType* m_printerType = nullptr;
};
