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
 * Composes the bills and slips that screens request. Each request reads company, printers and printer type again, so
 * that a change made at one till takes effect at all tills at once.
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

    /** Reads the settings; false, after a message, if that fails. */
    bool reload();
    /** False, after a message, if company profile or cashier printer are missing. */
    bool readyForCashier();
    template <class Report, class Sale>
    void printBill(Sale* (BusinessPenjualan::*find)(int), int invoiceId);
    using Kitchens = QList<EntityConfigKitchenPrinter*>;
    [[nodiscard]] Kitchens kitchensThatPrintByThemselves() const;
    /** The standing text tells the user what is saved although a slip failed. */
    template <class Report>
    void printForKitchens(const Kitchens& kitchens, OrderKind kind, const EntityOrder* order, const QString& standing);
    void printChange(const Kitchens& kitchens, OrderKind kind, const EntityOrder* order, const KitchenSlipComposer&);
    [[nodiscard]] static QString orderIsSaved();
    [[nodiscard]] EntityUser* findUser(int id);
    /** Shows the text in a box and returns true; for an empty text shows nothing and returns false. */
    bool showError(const QString& text);

    // Owns the records of the last request; cleared by the next one.
    EntityPool m_records;
    EntityDataPerusahaan* m_company = nullptr;
    EntityConfigCashierPrinter* m_cashierPrinter = nullptr;
    Kitchens m_kitchenPrinters;
    EntityPrinterType* m_printerType = nullptr;
};
