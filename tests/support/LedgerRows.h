#pragma once

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>

class TestDatabase;

/** SQL by column; of many rows, "i" is the row's number. */
using RowValues = QMap<QString, QString>;

/**
 * Lays rows down in any table of the shop of ShopRows.h: what must not be empty and is not given gets a value that
 * says nothing, and records with id 1 as partners.
 */
void insertRows(TestDatabase& database, const QString& table, const RowValues& values, int count = 1);
/** The same, the values as SQL has them: "no='NB-1', status=2". None of them holds a comma before a blank. */
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
    /** An account's id, 0 for none; sales and entries take the account's code instead, also of one that has gone. */
    int account = 1;
    QString code = "1-100";
    /** Where a transfer goes. */
    int toAccount = 2;
    QString note = QString();
    /** 0 for a row that nobody made. */
    int user = 1;
    /** What was paid of the whole, where the document tells. */
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

/** Years of trade until today, the same number of documents every day. */
void insertLedgerYears(TestDatabase& database, int years, int salesPerYear, int documentsPerYear);
