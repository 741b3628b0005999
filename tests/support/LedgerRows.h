#pragma once

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>

class TestDatabase;

/** SQL expressions by column; with several rows, "i" is the row's number. */
using RowValues = QMap<QString, QString>;

/**
 * Inserts rows into any table of the shop of ShopRows.h. Required columns that are not given get a neutral value, and
 * references the id 1.
 */
void insertRows(TestDatabase& database, const QString& table, const RowValues& values, int count = 1);
/** The same with the values as SQL: "no='NB-1', status=2". Values must not contain a comma followed by a space. */
void insertRows(TestDatabase& database, const QString& table, const QString& values, int count = 1);

/** A document or entry as the ledger reads it; amounts are in Rp. */
struct LedgerRow
{
    /** In the order of the ledger's branches; a transfer is one record with two of them. */
    enum Kind {
        PurchaseOrder,
        Purchase,
        CreditNote,
        PayBill,
        MemberPayment,
        Commission,
        Sale,
        DebitEntry,
        CreditEntry,
        Transfer,
        KindCount
    };

    Kind kind = Sale;
    QString no;
    QDate date;
    int amount = 100;
    /** The account's id, 0 for none. Sales and entries use the account's code instead, which may not exist. */
    int account = 1;
    QString code = "1-100";
    /** The target account of a transfer. */
    int toAccount = 2;
    QString note = QString();
    /** The user's id; 0 for none. */
    int user = 1;
    /** The amount paid, if the document stores it. */
    int paid = 0;
};

void insertLedgerRow(TestDatabase& database, const LedgerRow& row);

/** A table that the ledger reads, and the column of its date. */
struct LedgerTable
{
    QString name;
    QString date;
};

/** In the order of the kinds. */
const QList<LedgerTable>& ledgerTables();

/** Inserts years of trade until today, with the same number of documents every day. */
void insertLedgerYears(TestDatabase& database, int years, int salesPerYear, int documentsPerYear);
