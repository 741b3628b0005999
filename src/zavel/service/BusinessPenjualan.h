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
class IInvoice;
class Invoice;
struct AgentSalesFilter;
struct CommissionFilter;
struct FastFoodFilter;
struct ReceivableFilter;
struct SalesFilter;

/**
 * The one service of sales. It keeps a failure under the operation's name; a read that finds nothing returns null
 * without one. Rights are tested by the screens.
 *
 * All screens of sales know the service, and the service knows the records of them all. Therefore only its declaration
 * lies here, below its users: each operation is defined in the folder of the way of selling that it is about.
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

    /** The mappers are borrowed. */
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
        /** What clearing empties, in this order: what refers to others goes first. */
        QList<KorDataMapper*> transactions;
    };

    /** The generic operations go to the first mapper. */
    BusinessPenjualan(QObject* parent, KorDataMapper* mapper, const Mappers& mappers);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

    // Orders on tables.
    /** Refused on a table that carries an open order, as far as its code is written in lower case. */
    bool insertNewOrder(EntityMakanDitempat* order);
    bool updateOrder(EntityMakanDitempat* order);
    /** Refused once money was taken for the order. */
    bool removeOrder(EntityMakanDitempat* order);
    [[nodiscard]] EntityMakanDitempat* findOrder(int id);
    /** Open orders; see DataMapperMakanDitempat for how the status and the text narrow them. */
    [[nodiscard]] QList<EntityMakanDitempat*> getMakanDitempatList(int status, const QString& text);
    bool updateStatusMakanDitempat(EntityMakanDitempat* order);
    /** The guests have gone: the table is free again. */
    bool makanDitempatSelesai(EntityMakanDitempat* order);

    // Orders to take away.
    /** A take-away order is always a new one: it sits on no table. */
    bool insertNewOrder(EntityBawaPulang* order);
    bool updateOrder(EntityBawaPulang* order);
    /** Refused once money was taken for the order. */
    bool removeOrder(EntityBawaPulang* order);
    [[nodiscard]] EntityBawaPulang* findOrderBawaPulang(int id);
    /** Orders in the status; 0 gives all that are not done. */
    [[nodiscard]] QList<EntityBawaPulang*> getBawaPulangList(int status);
    /** The guest has taken the food: the order is done. */
    bool bawaPulangSelesai(EntityBawaPulang* order);
    /** The order's status follows its invoice's. */
    bool updateStatusBawaPulang(EntityInvoiceBawaPulang* sale);

    /** Open orders of both kinds with a line priced in another currency than this sign. */
    [[nodiscard]] int countOpenOrdersOfOtherCurrency(const QString& sign);

    // The kitchen.
    /** The open orders, those on tables first, each part in its list's order; the text narrows the tables alone. */
    [[nodiscard]] QList<EntityQueue*> getQueue(const QString& text);
    /** Writes what the kitchen reports about the line, and nothing else of the order. */
    bool setKitchenStatus(EntityMakanDitempatDetail* line, const QString& text);
    bool setKitchenStatus(EntityBawaPulangDetail* line, const QString& text);

    // Invoices of all ways of selling. True when the invoice stands; what failed behind it, the order's status, is an
    // error all the same.
    /** Saves the first state of an invoice, draws its number, then sets the order's status from all its invoices. */
    bool insertInvoice(IInvoice* sale);
    /** Saves a changed invoice; the order's status then follows from this one invoice alone. */
    bool updateInvoice(IInvoice* sale);
    /** The second half of both, for an order that was read before somebody else changed it too: sets its status. */
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
     * Deletes the invoice with its lines and links. Of a table's order all links go, so that its other invoices lose
     * theirs; the order itself, payments and commissions stay as they are.
     */
    bool deleteSales(Invoice* invoice);
    [[nodiscard]] QList<EntityPenjualanInfo*> searchPenjualan(const SalesFilter& filter);
    // Figures by day or month, oldest first; both limits count. AllUsers asks for the sales of all users.
    static constexpr int AllUsers = -1;
    [[nodiscard]] QList<EntitySalesSummaryInfo*> getDailySales(const QDate& from, const QDate& to, int userId);
    [[nodiscard]] QList<EntitySalesSummaryInfo*> getMonthlySales(const QDate& from, const QDate& to, int userId);
    /** What was sold of each item, sorted by one of the columns; an empty item type asks for all. */
    [[nodiscard]] QList<EntitySoldItem*> getSoldItems(const QDate& from, const QDate& to, const QString& direction,
                                                      const QString& sortColumn, const QString& itemType);

    // What members pay later.
    using KorBusinessLogic::insert;
    using KorBusinessLogic::remove;
    [[nodiscard]] EntityPiutang* findPiutang(int id);
    /** Saves the payment, then counts the invoices that it pays anew; true when both stand. */
    bool insert(EntityPiutang* payment);
    bool updatePiutang(EntityPiutang* payment);
    /** The second half of both: books what all payments paid of the payment's invoices as their other payment. */
    bool updateInvoicesOfPiutang(const EntityPiutang* payment);
    /**
     * Credit that stands on the payment's invoices without a member's payment behind it, given at the sale or left by a
     * payment that was deleted: counting anew puts the payments in its place. One line an invoice, the amount in
     * AmountPaid; the pool's.
     */
    [[nodiscard]] QList<EntityPiutangDetail*> creditsReplacedBy(const EntityPiutang* payment);
    /** The invoices keep the money until a later payment counts them anew. */
    bool remove(EntityPiutang* payment);
    [[nodiscard]] QList<EntityPiutang*> searchPiutang(const ReceivableFilter& filter);
    /** A line for each open invoice of the member, with what is due and nothing paid yet. */
    [[nodiscard]] QList<EntityPiutangDetail*> getUnpaidInvoicesForMember(int memberId);

    // What agents earn.
    [[nodiscard]] EntityKomisiAgen* findKomisiAgen(int id);
    bool insertCommision(EntityKomisiAgen* payment);
    bool updateCommision(EntityKomisiAgen* payment);
    /** The invoices are pending again. */
    bool remove(EntityKomisiAgen* payment);
    [[nodiscard]] QList<EntityKomisiAgen*> searchKomisiAgen(const CommissionFilter& filter);
    /** The payment that paid the invoice's commission; null without an error when none did. */
    [[nodiscard]] EntityKomisiAgen* getKomisiAgenByInvoiceId(int invoiceId);
    [[nodiscard]] QList<EntityPenjualanInfo*> searchPendingInvoiceForAgentCommision(int agentId);
    [[nodiscard]] QList<EntityAllKomisiAgen*> searchInvoiceForAgentCommision(const AgentSalesFilter& filter);

private:
    [[nodiscard]] DataMapperInvoiceLink* mapperOf(IInvoice* sale) const;
    bool setOrderStatus(IInvoice* sale, bool isFirst);
    bool followInvoices(EntityMakanDitempat* order);
    /** The payment with all its lines, also those whose invoice is gone. */
    bool removeSettlement(AppDocumentMapper* settlements, KorEntity* payment);
    bool setDineStatus(EntityMakanDitempat* order, int status);
    /** The invoices that the payment pays of, as they stand, and what members have paid of each; false if it failed. */
    bool readPaidInvoices(const EntityPiutang* payment, QList<Invoice*>* invoices, QHash<int, double>* paid);

    Mappers m_mappers;
};
