#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/cash/ledger/DataMapperCashFlow.h"
#include "pos/cash/transfer/AccountingTransactionFilter.h"
#include "pos/cash/transfer/BusinessAccountingTransaction.h"
#include "pos/cash/transfer/EntityAccountingTransaction.h"
#include "support/DatabaseTest.h"
#include "support/SalesRows.h"

#include <QRandomGenerator>
#include <QTranslator>

namespace
{
const QDate march(2026, 3, 1);
const CashFlowFilter inMarch{march, QDate(2026, 3, 31), CashFlowFilter::AllRows, {}};
const QMap<QString, QString> accounts{{"1-100", "Cash"}, {"2-AB", "Safe"}, {"3-cd", "Bank O'Neil"}};
const QStringList codes = accounts.keys();
const QStringList users{"", "ann", "ben"};
const QStringList labels{"Deposit Purchase Order",
                         "Purchases",
                         "Credit Note",
                         "Payment / Pay Bill",
                         "Member Payment",
                         "Agent Commission",
                         "Sales",
                         "DEBET",
                         "CREDIT",
                         "Transferring Funds"};

/** One line of the ledger, calculated by the test. */
struct Movement
{
    QDate date;
    QString code;
    int debit;
    int credit;
    QString no;
    QString label;
    QString note;
    QString user;

    [[nodiscard]] QString text() const
    {
        return QStringList{date.toString(Qt::ISODate),
                           code,
                           accounts.value(code),
                           QString::number(debit),
                           QString::number(credit),
                           no,
                           label,
                           note,
                           user}
            .join('|');
    }
};

QList<Movement> movementsOf(const LedgerRow& row)
{
    const bool byCode = row.kind >= LedgerRow::Sale && row.kind <= LedgerRow::CreditEntry;
    const QString account = byCode ? row.code : codes.value(row.account - 1);
    const bool isDebit = row.kind == LedgerRow::CreditNote || row.kind == LedgerRow::MemberPayment ||
                         row.kind == LedgerRow::Sale || row.kind == LedgerRow::DebitEntry;
    const auto on = [&row](const QString& code, bool debit) {
        return Movement{row.date,         code,     debit ? row.amount : 0, debit ? 0 : row.amount, row.no,
                        labels[row.kind], row.note, users[row.user]};
    };
    QList<Movement> movements{on(account, isDebit)};
    if (row.kind == LedgerRow::Transfer)
        movements.append(on(codes.value(row.toAccount - 1), true));
    return movements;
}

bool belongs(const Movement& movement, const CashFlowFilter& filter)
{
    return !movement.user.isEmpty() && accounts.contains(movement.code) && movement.date >= filter.fromDate &&
           movement.date <= filter.toDate && (filter.type != CashFlowFilter::DebitRows || movement.debit > 0) &&
           (filter.type != CashFlowFilter::CreditRows || movement.credit > 0) &&
           (filter.code.trimmed().isEmpty() || movement.code.toLower() == filter.code.trimmed().toLower());
}

/** The language of another workstation; it replaces every label of the ledger. */
class Foreign final : public QTranslator
{
public:
    explicit Foreign(const QString& label) : m_label(label) { QCoreApplication::installTranslator(this); }
    [[nodiscard]] QString translate(const char* context, const char*, const char*, int) const override
    {
        return qstrcmp(context, "DataMapperCashFlow") == 0 ? m_label : QString();
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    QString m_label;
};
} // namespace

/** Every movement of money in one list, made of the documents as they are. */
class TestLedger : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insert("bank", "id=2, kode='2-AB', nama='Safe', active=true");
        insert("bank", "id=3, kode='3-cd', nama='Bank O''Neil', active=true");
        run("TRUNCATE users CASCADE");
        insertSeller(*m_database, 1, "ann");
        insertSeller(*m_database, 2, "ben");
        AppContext::instance()->setLocale("id_ID");
        m_service = service<BusinessCashFlow>("Journal Transaction");
    }

private slots:
    void theLedgerIsWhatTheDocumentsComeTo_data() { addSeeds({1U, 2U, 3U}); }
    void theLedgerIsWhatTheDocumentsComeTo()
    {
        QFETCH(quint32, seed);
        QRandomGenerator chance(seed);
        QList<Movement> all;
        for (int i = 0; i < 200; ++i) {
            LedgerRow row;
            row.kind = static_cast<LedgerRow::Kind>(i % LedgerRow::KindCount);
            row.no = QString("No-%1").arg(chance.bounded(150));
            row.date = march.addDays(chance.bounded(-20, 50));
            row.amount = chance.bounded(8) == 0 ? 0 : chance.bounded(2000000000);
            row.account = chance.bounded(row.kind == LedgerRow::Transfer ? 1 : 0, 4);
            row.toAccount = 1 + row.account % 3;
            row.code = codes[chance.bounded(3)];
            const bool byHand = row.kind == LedgerRow::DebitEntry || row.kind == LedgerRow::CreditEntry;
            if (byHand && chance.bounded(4) == 0)
                row.code = "gone";
            row.note = chance.bounded(2) == 0 ? QString() : "Note " + QString::number(i);
            row.user = chance.bounded(3);
            row.paid = chance.bounded(row.amount + 1);
            insertLedgerRow(*m_database, row);
            all.append(movementsOf(row));
        }
        for (int type : {CashFlowFilter::AllRows, CashFlowFilter::DebitRows, CashFlowFilter::CreditRows}) {
            for (const char* code : {"", "1-100", " 2-ab ", "3-CD", "gone", "it's"}) {
                const CashFlowFilter filter{march, march.addDays(chance.bounded(31)), type, code};
                QStringList expected;
                for (const Movement& movement : all) {
                    if (belongs(movement, filter))
                        expected.append(movement.text());
                }
                const StatementCount statements;
                QStringList rows = ledger(filter);
                QCOMPARE(statements.count(), 1);
                for (int i = 1; i < rows.size(); ++i)
                    QVERIFY(rows[i].section('|', 0, 0) <= rows[i - 1].section('|', 0, 0));
                rows.sort();
                expected.sort();
                QCOMPARE(rows, expected);
            }
        }
    }

    void everyWorkstationReadsTheTypesInItsLanguage_data()
    {
        const auto row = addColumns<QString>("label");
        for (const char* label :
             {"Vente de l'après-midi", "'; drop table users; --", "Was? :code :fromDate", "a\\'b\\"})
            row(label, QString(label));
    }
    void everyWorkstationReadsTheTypesInItsLanguage()
    {
        QFETCH(QString, label);
        insertLedgerRow(*m_database, {LedgerRow::Sale, "TRD-1", march});
        CashFlowFilter filter = inMarch;
        filter.code = "1-100";
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(ledger(filter).join('\n'), QString("2026-03-01|1-100|Cash|100|0|TRD-1|Sales||ann"));
            const Foreign language(label);
            QCOMPARE(ledger(filter).join('\n'), QString("2026-03-01|1-100|Cash|100|0|TRD-1|%1||ann").arg(label));
        }
    }

    void anEntryOutlivesItsAccountButLeavesTheLedger()
    {
        insertLedgerRow(*m_database, {LedgerRow::CreditEntry, "KK-0001", march, 70, 2, "2-AB"});
        insertLedgerRow(*m_database, {LedgerRow::Purchase, "NB-0001", march, 70, 1});
        QCOMPARE(ledger(inMarch).size(), 2);
        run("DELETE FROM bank WHERE kode = '2-AB'");
        QCOMPARE(ledger(inMarch).size(), 1);
        const EntityCashFlow* entry = m_service->getByTransNo("  kk-0001 ");
        QVERIFY(entry);
        QCOMPARE(entry->getCredit()->getAmount(), 70.0);
        // A document is no entry.
        QVERIFY(!m_service->getByTransNo("NB-0001"));
        QVERIFY(!m_service->hasError());
    }

    void aMonthIsReadByTheDatesOfTheDocuments()
    {
        insertLedgerYears(*m_database, 5, 10000, 2000);
        QString statement = static_cast<DataMapperCashFlow*>(m_service->mapper())->getCashFlowQuery();
        statement.replace(":fromDate", "current_date - 29").replace(":toDate", "current_date");
        KorQuery query;
        QVERIFY2(query.exec("EXPLAIN" + statement), qPrintable(query.failure()));
        QString plan;
        while (query.next())
            plan += query.value(0).toString() + '\n';
        for (const LedgerTable& table : ledgerTables())
            QVERIFY2(plan.contains(table.name + '_' + table.date + "_idx") &&
                         !plan.contains("Seq Scan on " + table.name),
                     qPrintable(table.name + ":\n" + plan));
    }

    void transfersAreListedByTheirDate()
    {
        for (int day : {-1, 0, 30, 31})
            insertLedgerRow(*m_database, {LedgerRow::Transfer, "TR" + QString::number(day), march.addDays(day)});
        QStringList numbers;
        auto* transfers = service<BusinessAccountingTransaction>("Accounting Transaction");
        for (const EntityAccountingTransaction* transfer : transfers->search({march, march.addDays(30)}))
            numbers.append(transfer->getTransNo() + ' ' + transfer->getFromAccount()->getKode() + ' ' +
                           transfer->getToAccount()->getKode());
        QCOMPARE(numbers, (QStringList{"TR30 1-100 2-AB", "TR0 1-100 2-AB"}));
        QVERIFY(!transfers->hasError());
    }

private:
    QStringList ledger(const CashFlowFilter& filter)
    {
        QStringList lines;
        for (const EntityCashFlow* row : m_service->search(filter))
            lines.append(Movement{row->getDate(), row->getAccountCode(), int(row->getDebet()->getAmount()),
                                  int(row->getCredit()->getAmount()), row->getTransNo(), row->getTransType(),
                                  row->getNotes(), row->getOperator()}
                             .text()
                             .replace(accounts.value(row->getAccountCode()), row->getAccountName()));
        if (m_service->hasError())
            lines.append(m_service->takeErrors());
        return lines;
    }

    BusinessCashFlow* m_service = nullptr;
};

QTEST_MAIN(TestLedger)
#include "tst_ledger.moc"
