#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperInvoice;
class DataMapperInvoiceLink;
class DataMapperInvoiceMakanDitempat;
class DataMapperMakanDitempat;
class DataMapperOrder;
class EntityInvoiceBawaPulang;
class EntityInvoiceFastFood;
class EntityInvoiceMakanDitempat;
class EntityMakanDitempat;
class IInvoice;

/**
 * The one service of sales. It keeps a failure under the operation's name; a read that finds nothing returns null
 * without one. Rights are tested by the screens.
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
        DataMapperInvoiceLink* fastFoodInvoices = nullptr;
        DataMapperInvoiceLink* takeAwayInvoices = nullptr;
        DataMapperMakanDitempat* dineOrders = nullptr;
        DataMapperOrder* takeAwayOrders = nullptr;
        KorDataMapper* salesList = nullptr;
        KorDataMapper* receivables = nullptr;
        DataMapperInvoice* invoices = nullptr;
        KorDataMapper* commissions = nullptr;
        KorDataMapper* pendingCommissions = nullptr;
    };

    BusinessPenjualan(QObject* parent, const Mappers& mappers);

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
    /** The order's status follows its invoice's. */
    bool updateStatusBawaPulang(EntityInvoiceBawaPulang* sale);

    // Invoices of all ways of selling. True when the invoice stands; what failed behind it, the order's status, is an
    // error all the same.
    /** Saves the first state of an invoice, draws its number, then sets the order's status from all its invoices. */
    bool insertInvoice(IInvoice* sale);
    /** Saves a changed invoice; the order's status then follows from this one invoice alone. */
    bool updateInvoice(IInvoice* sale);
    [[nodiscard]] EntityInvoiceMakanDitempat* findInvoiceMakanDitempat(int id);
    [[nodiscard]] EntityInvoiceFastFood* findInvoiceFastFood(int id);
    [[nodiscard]] EntityInvoiceBawaPulang* findInvoiceBawaPulang(int id);
    [[nodiscard]] EntityInvoiceMakanDitempat* findMakanDitempatByInvoiceId(int invoiceId);
    [[nodiscard]] QList<EntityInvoiceMakanDitempat*> getInvoicesOfOrder(int orderId);

private:
    [[nodiscard]] DataMapperInvoiceLink* mapperOf(IInvoice* sale) const;
    void followInvoices(EntityMakanDitempat* order);
    void setDineStatus(EntityMakanDitempat* order, int status);

    Mappers m_mappers;
};
