#include "PrivateCups.h"
#include "pos/printing/printer/AppLinePrinter.h"
#include "pos/printing/spooler/CupsSlipSpooler.h"

#include <QTest>

#include <cups/cups.h>

namespace
{
class Slip final : public AppLinePrinter
{
public:
    explicit Slip(const QByteArray& body, int copies = 1, const QByteArray& cut = {})
        : m_body(body), m_copies(copies), m_cut(cut)
    {}
    bool print() override { return printCopies("Kasir", "Bill", m_body, m_copies, m_cut); }

private:
    QByteArray m_body;
    int m_copies;
    QByteArray m_cut;
};

QStringList jobsInTheServer()
{
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    QStringList list;
    for (int i = 0; i < count; ++i)
        list.append(QString("%1 %2 %3").arg(jobs[i].dest, jobs[i].title).arg(int(jobs[i].state)));
    cupsFreeJobs(count, jobs);
    return list;
}

QString completed(const char* title) { return QString("Kasir %1 %2").arg(title).arg(int(IPP_JSTATE_COMPLETED)); }
} // namespace

/// Slips through a real print server. Each test has a server of its own.
class TestCupsPrinting final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        qunsetenv("ZAVEL_SPOOL_DIR");
        for (const char* choice : {"PRINTER", "LPDEST"})
            qunsetenv(choice);
        m_cups = std::make_unique<PrivateCups>();
        const QString problem = m_cups->start();
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        // The library remembers the server it read from the environment first.
        qputenv("CUPS_SERVER", m_cups->address());
        cupsSetServer(m_cups->address().constData());
        for (const auto& queue : {qMakePair(QString("Dapur"), false), qMakePair(QString("Kasir"), true)}) {
            const QString refused = m_cups->addRawQueue(queue.first, queue.second);
            QVERIFY2(refused.isEmpty(), qPrintable(refused));
        }
    }

    void cleanup() { m_cups.reset(); }

    void everyByteReachesThePaper()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all.append(static_cast<char>(byte));
        const QByteArray large = all.repeated(1000);

        CupsSlipSpooler spooler;
        QVERIFY2(spooler.openPrinter("Kasir", "Bytes"), qPrintable(spooler.errorText()));
        QVERIFY(spooler.write(all.mid(1)));
        QVERIFY(spooler.write(QByteArray()));
        QVERIFY(spooler.write(large));
        QVERIFY(spooler.write("end"));
        QVERIFY2(spooler.close(), qPrintable(spooler.errorText()));

        QTRY_COMPARE(m_cups->printed().size(), 1);
        QVERIFY(m_cups->printed().first() == all.mid(1) + large + "end");
        QTRY_COMPARE(jobsInTheServer(), QStringList(completed("Bytes")));
    }

    void aBillComesWithItsCopiesAndCuts()
    {
        const QByteArray body = QString::fromUtf8("Café Şeker – Rp 1.500\n").toUtf8();
        QVERIFY(Slip(body, 2, AppLinePrinter::decodeControlSequence("29#V#66#0")).print());
        QTRY_COMPARE(m_cups->printed(), QList<QByteArray>({body + "\x1D\x56\x42" + body + "\x1D\x56\x42"}));
        QTRY_COMPARE(jobsInTheServer(), QStringList(completed("Bill")));
    }

    void nothingIsWrittenForAnEmptySlip()
    {
        QVERIFY(Slip("body", 0).print());
        QVERIFY(Slip("after").print());
        QTRY_VERIFY(m_cups->printed().contains("after"));
        QVERIFY(!m_cups->printed().contains("body"));
    }

    void slipsComeOutInTheOrderOfPrinting()
    {
        QList<QByteArray> expected;
        for (int slip = 1; slip <= 6; ++slip) {
            expected.append("slip " + QByteArray::number(slip) + '\n');
            QVERIFY(Slip(expected.last()).print());
        }
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->printed().size(), 6, 20000);
        QCOMPARE(m_cups->printed(), expected);
    }

    void anUnknownPrinterLeavesNoJob()
    {
        CupsSlipSpooler spooler;
        QVERIFY(!spooler.openPrinter("Gudang", "Menu"));
        QVERIFY2(spooler.errorText().contains("Gudang"), qPrintable(spooler.errorText()));
        QVERIFY(!spooler.isOpen());
        QVERIFY(!spooler.write("x"));
        QVERIFY(!spooler.close());
        QCOMPARE(jobsInTheServer(), QStringList());
        QVERIFY(spooler.openPrinter("Kasir", "Menu")); // the same spooler goes on with a printer that is there
    }

    void thePrintersAreListedWithTheDefaultMarked()
    {
        CupsSlipSpooler spooler;
        QStringList seen;
        const QList<SlipPrinter> printers = spooler.availablePrinters();
        for (const SlipPrinter& printer : printers)
            seen.append(printer.name + (printer.isDefault ? " [default]" : ""));
        QCOMPARE(seen, QStringList({"Dapur", "Kasir [default]"}));

        m_cups->stop();
        QVERIFY(spooler.availablePrinters().isEmpty());
        QVERIFY(!spooler.errorText().isEmpty());
    }

    void aSlipGivenUpIsNotPrinted()
    {
        {
            CupsSlipSpooler spooler;
            QVERIFY(spooler.openPrinter("Kasir", "Bill"));
            QVERIFY(spooler.write("half a bill"));
        }
        QTRY_COMPARE(jobsInTheServer(), QStringList(QString("Kasir Bill %1").arg(int(IPP_JSTATE_CANCELED))));
        QVERIFY(Slip("whole bill").print());
        QTRY_COMPARE(m_cups->printed(), QList<QByteArray>({"whole bill"}));
    }

    void aServerThatGoesAwayIsToldAndFoundAgain()
    {
        CupsSlipSpooler spooler;
        QVERIFY(spooler.openPrinter("Kasir", "Bill"));
        QVERIFY(spooler.write("first line\n"));
        m_cups->stop();
        QVERIFY(!spooler.write("second line\n"));
        QVERIFY2(spooler.errorText().startsWith("The connection to the print server is lost"),
                 qPrintable(spooler.errorText()));
        QVERIFY(!spooler.write("third line\n"));
        QVERIFY2(spooler.errorText().isEmpty(), "a broken slip is told once");
        QVERIFY(!spooler.close());
        QVERIFY(!spooler.openPrinter("Kasir", "Bill"));
        QVERIFY2(spooler.errorText().startsWith("The print server does not answer"), qPrintable(spooler.errorText()));

        const QString problem = m_cups->start();
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QTRY_COMPARE(spooler.availablePrinters().size(), 2);
        QVERIFY(Slip("again").print());
        QTRY_COMPARE(m_cups->printed(), QList<QByteArray>({"again"}));
    }

private:
    std::unique_ptr<PrivateCups> m_cups;
};

QTEST_MAIN(TestCupsPrinting)
#include "tst_cups_printing.moc"
