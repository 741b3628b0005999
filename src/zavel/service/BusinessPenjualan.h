#pragma once

#include "kor/business/KorBusinessLogic.h"

#include <QDate>

class AppDocumentMapper;
class DataMapperAllAgentCommision;
class DataMapperBawaPulang;
class DataMapperInvoice;
class DataMapperInvoiceBawaPulang;
class DataMapperInvoiceFastFood;
class DataMapperInvoiceLink;
class DataMapperInvoiceMakanDitempat;
class DataMapperKomisiAgen;
class DataMapperMakanDitempat;
class DataMapperPenjualanInfo;
class DataMapperPiutang;
class EntityAllKomisiAgen;
class EntityBawaPulang;
class EntityBawaPulangDetail;
class EntityInvoiceBawaPulang;
class EntityInvoiceFastFood;
class EntityInvoiceMakanDitempat;
class EntityKomisiAgen;
class EntityMakanDitempat;
class EntityMakanDitempatDetail;
class EntityPenjualanInfo;
class EntityPiutang;
class EntityPiutangDetail;
class EntityQueue;
class EntitySalesSummaryInfo;
class EntitySoldItem;
class FoundRows;
class IInvoice;
class Invoice;
struct AgentSalesFilter;
struct CommissionFilter;
struct FastFoodFilter;
struct ReceivableFilter;
struct SalesFilter;

/**
 * The service of all sales. Errors are stored under the operation's name; a read that finds nothing returns null
 * without an error. The screens check the access rights.
 *
 * All screens of sales depend on the service, and the service depends on all their records. Therefore only the
 * declaration is in this folder; each operation is defined in the folder of its kind of sale.
 */
class BusinessPenjualan final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS {
        TAMBAH_PESANAN,
        UBAH_PESANAN,
        HAPUS_PESANAN,
        SAVE_INVOICE,
        SET_KITCHEN_STATUS,
        BAYAR_PIUTANG,
        UPDATE_PIUTANG,
        BAYAR_KOMISI_AGEN,
        UPDATE_BAYAR_KOMISI_AGEN,
        DELETE_SALES,
        DELETE_PIUTANG,
        HAPUS_BAYAR_KOMISI
    };
    Q_ENUM(PERMISSIONS)

    /** The mappers that the service uses; not owned. */
    struct Mappers
    {
        DataMapperInvoiceMakanDitempat* dineInvoices = nullptr;
        DataMapperInvoiceFastFood* fastFoodInvoices = nullptr;
        DataMapperInvoiceBawaPulang* takeAwayInvoices = nullptr;
        DataMapperMakanDitempat* dineOrders = nullptr;
        DataMapperBawaPulang* takeAwayOrders = nullptr;
        DataMapperPenjualanInfo* salesList = nullptr;
        DataMapperPiutang* receivables = nullptr;
        DataMapperInvoice* invoices = nullptr;
        DataMapperKomisiAgen* commissions = nullptr;
        DataMapperAllAgentCommision* agentSales = nullptr;
        /** The mappers whose tables clearTransactions() empties, in this order: referring tables first. */
        QList<KorDataMapper*> transactions;
    };

    /** The generic operations of the base class use the single mapper. */
    BusinessPenjualan(QObject* parent, KorDataMapper* mapper, const Mappers& mappers);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

    // Orders on tables.
    /** Refused if the table has an open order; this is only detected if the table's code has no capital letters. */
    bool insertNewOrder(EntityMakanDitempat* order);
    bool updateOrder(EntityMakanDitempat* order);
    /** Refused once the order is paid, even in part. */
    bool removeOrder(EntityMakanDitempat* order);
    [[nodiscard]] EntityMakanDitempat* findOrder(int id);
    /** Open orders; see DataMapperMakanDitempat for the effect of status and text. */
    [[nodiscard]] QList<EntityMakanDitempat*> getMakanDitempatList(int status, const QString& text);
    bool updateStatusMakanDitempat(EntityMakanDitempat* order);
    /** Sets the order to done: the guests have left and the table is free again. */
    bool makanDitempatSelesai(EntityMakanDitempat* order);

    // Orders to take away.
    /** Never refused because of an existing order, as it has no table. */
    bool insertNewOrder(EntityBawaPulang* order);
    bool updateOrder(EntityBawaPulang* order);
    /** Refused once the order is paid, even in part. */
    bool removeOrder(EntityBawaPulang* order);
    [[nodiscard]] EntityBawaPulang* findOrderBawaPulang(int id);
    /** Orders in the status; 0 for all that are not done. */
    [[nodiscard]] QList<EntityBawaPulang*> getBawaPulangList(int status);
    /** Sets the order to done: the guest has taken the food. */
    bool bawaPulangSelesai(EntityBawaPulang* order);
    /** Sets the order's status from its invoice's status. */
    bool updateStatusBawaPulang(EntityInvoiceBawaPulang* sale);

    /** Number of open orders of both kinds with a line in another currency than this sign. */
    [[nodiscard]] int countOpenOrdersOfOtherCurrency(const QString& sign);

    // The kitchen.
    /** The open orders, those on tables first, each kind in its list's order; the text filters only tables. */
    [[nodiscard]] QList<EntityQueue*> getQueue(const QString& text);
    /** Writes only the kitchen's status text of the line. */
    bool setKitchenStatus(EntityMakanDitempatDetail* line, const QString& text);
    bool setKitchenStatus(EntityBawaPulangDetail* line, const QString& text);

    // Invoices of all kinds of sale. True if the invoice is saved; if setting the order's status then fails, the result
    // is still true and the service has an error.
    /** Saves a new invoice with the next number, then sets the order's status from all its invoices. */
    bool insertInvoice(IInvoice* sale);
    /** Saves a changed invoice, then sets the order's status from this invoice alone. */
    bool updateInvoice(IInvoice* sale);
    /** Repeats the second step of both: sets the status of the order, even if others have changed it meanwhile. */
    bool finishInvoice(IInvoice* sale, bool isFirst);
    [[nodiscard]] EntityInvoiceMakanDitempat* findInvoiceMakanDitempat(int id);
    [[nodiscard]] EntityInvoiceFastFood* findInvoiceFastFood(int id);
    [[nodiscard]] EntityInvoiceBawaPulang* findInvoiceBawaPulang(int id);
    [[nodiscard]] EntityInvoiceMakanDitempat* findMakanDitempatByInvoiceId(int invoiceId);
    [[nodiscard]] EntityInvoiceFastFood* findFastFoodByInvoiceId(int invoiceId);
    [[nodiscard]] EntityInvoiceBawaPulang* findBawaPulangByInvoiceId(int invoiceId);
    [[nodiscard]] QList<EntityInvoiceMakanDitempat*> getInvoicesOfOrder(int orderId);
    [[nodiscard]] QList<EntityInvoiceBawaPulang*> getInvoicesOfBawaPulang(int orderId);
    [[nodiscard]] QList<EntityInvoiceFastFood*> getFastFoodList(const FastFoodFilter& filter);

    // All sales.
    /**
     * Deletes the invoice with its lines and links. For an order on a table all links are deleted, also those of its
     * other invoices; the order itself, payments and commissions stay unchanged.
     */
    bool deleteSales(Invoice* invoice);
    [[nodiscard]] QList<EntityPenjualanInfo*> searchPenjualan(const SalesFilter& filter);
    /** The same for a list of any length; nothing is read yet. */
    [[nodiscard]] std::shared_ptr<FoundRows> openSales(const SalesFilter& filter);
    // Figures by day or month, oldest first; both dates are inclusive. AllUsers means the sales of all users.
    static constexpr int AllUsers = -1;
    [[nodiscard]] QList<EntitySalesSummaryInfo*> getDailySales(const QDate& from, const QDate& to, int userId);
    [[nodiscard]] QList<EntitySalesSummaryInfo*> getMonthlySales(const QDate& from, const QDate& to, int userId);
    /** The sales of each item, sorted by one of the columns; an empty item type means all. */
    [[nodiscard]] QList<EntitySoldItem*> getSoldItems(const QDate& from, const QDate& to, const QString& direction,
                                                      const QString& sortColumn, const QString& itemType);

    // Members' later payments.
    using KorBusinessLogic::insert;
    using KorBusinessLogic::remove;
    [[nodiscard]] EntityPiutang* findPiutang(int id);
    /** Saves the payment, then updates the invoices that it pays; true if both succeeded. */
    bool insert(EntityPiutang* payment);
    bool updatePiutang(EntityPiutang* payment);
    /** The second step of both: sets the other payment of each invoice to the sum of all members' payments for it. */
    bool updateInvoicesOfPiutang(const EntityPiutang* payment);
    /**
     * Credit on the payment's invoices that does not come from a member's payment: it was given at the sale, or is left
     * from a deleted payment. updateInvoicesOfPiutang() overwrites it. One line per invoice, the amount in AmountPaid;
     * the lines belong to the pool.
     */
    [[nodiscard]] QList<EntityPiutangDetail*> creditsReplacedBy(const EntityPiutang* payment);
    /** The invoices keep the amount until a later payment updates them. */
    bool remove(EntityPiutang* payment);
    [[nodiscard]] QList<EntityPiutang*> searchPiutang(const ReceivableFilter& filter);
    /** A line for each open invoice of the member, with the amount due and 0 paid. */
    [[nodiscard]] QList<EntityPiutangDetail*> getUnpaidInvoicesForMember(int memberId);

    // Commissions of agents.
    [[nodiscard]] EntityKomisiAgen* findKomisiAgen(int id);
    bool insertCommision(EntityKomisiAgen* payment);
    bool updateCommision(EntityKomisiAgen* payment);
    /** The commissions of the invoices are unpaid again. */
    bool remove(EntityKomisiAgen* payment);
    [[nodiscard]] QList<EntityKomisiAgen*> searchKomisiAgen(const CommissionFilter& filter);
    /** The payment that paid the invoice's commission; null without an error when none did. */
    [[nodiscard]] EntityKomisiAgen* getKomisiAgenByInvoiceId(int invoiceId);
    [[nodiscard]] QList<EntityPenjualanInfo*> searchPendingInvoiceForAgentCommision(int agentId);
    [[nodiscard]] QList<EntityAllKomisiAgen*> searchInvoiceForAgentCommision(const AgentSalesFilter& filter);
    /** The same for a list of any length, with what it shows of the agents and invoices; nothing is read yet. */
    [[nodiscard]] std::shared_ptr<FoundRows> openAgentSales(const AgentSalesFilter& filter);

private:
    [[nodiscard]] DataMapperInvoiceLink* mapperOf(IInvoice* sale) const;
    bool setOrderStatus(IInvoice* sale, bool isFirst);
    bool followInvoices(EntityMakanDitempat* order);
    /** Deletes the payment with all its lines, also those whose invoice is deleted. */
    bool removeSettlement(AppDocumentMapper* settlements, KorEntity* payment);
    bool setDineStatus(EntityMakanDitempat* order, int status);
    /** Reads the payment's invoices and the sum of members' payments for each, in minor units; false on an error. */
    bool readPaidInvoices(const EntityPiutang* payment, QList<Invoice*>* invoices, QHash<int, double>* paid);

    Mappers m_mappers;
};
