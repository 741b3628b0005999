#pragma once

#include "app/context/EntityPool.h"
#include "zavel/slips/OrderText.h"

#include <QList>
#include <QObject>

class BusinessPenjualan;
class EntityPrinterType;
class EntityUser;
class KorBusinessLogic;

/**
 * Where screens ask for a bill or a slip. Each request reads company, printers and printer type anew, so that a change
 * at one till counts at all of them at once. What cannot be printed is told in a box; the sale stands either way.
 */
class ZavelReportFactory final : public QObject
{
    Q_OBJECT

public:
    static ZavelReportFactory* instance();

    // By the sale's own row: the one that ties the invoice to its way of selling.
    void printBillMakanDitempat(int invoiceId);
    void printBillFastFood(int invoiceId);
    void printBillBawaPulang(int invoiceId);

    /** The recap of an order on the cashier printer. */
    void printMakanDitempat(int orderId);
    /** A slip to each kitchen that prints by itself, with the lines that the order holds in memory. */
    void printMenuOrder(OrderKind kind, EntityOrder* order);
    /** The same to all kitchens. */
    void reprintMenuOrder(OrderKind kind, EntityOrder* order);
    void printMenuOrderCanceled(OrderKind kind, EntityOrder* order);

private:
    explicit ZavelReportFactory(QObject* parent);

    /** False, after telling why, where the settings cannot be read. */
    bool reload();
    /** False, after telling why, where what every slip of the cashier needs is missing. */
    bool readyForCashier();
    template <class Report, class Sale>
    void printBill(Sale* (BusinessPenjualan::*find)(int), int invoiceId);
    template <class Report>
    void printForKitchens(const QList<EntityConfigKitchenPrinter*>& kitchens, OrderKind kind, const EntityOrder* order);
    [[nodiscard]] EntityUser* findUser(int id);
    /** Shows in one box what the services could not read; true when there was something. */
    bool showErrors(const QList<KorBusinessLogic*>& services);
    void showError(const QString& text);

    // What the last request read; the next one frees it.
    EntityPool m_records;
    EntityDataPerusahaan* m_company = nullptr;
    EntityConfigCashierPrinter* m_cashierPrinter = nullptr;
    QList<EntityConfigKitchenPrinter*> m_kitchenPrinters;
    EntityPrinterType* m_printerType = nullptr;
};
