#include "PrivateCups.h"
#include "pos/printing/printer/AppLinePrinter.h"
#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/spooler/SlipSpooler.h"
#include "shell/window/SlipStatus.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"

#include <QElapsedTimer>
#include <QHash>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTimer>

#include <arpa/inet.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
/** How long a till may wait, with a margin for a slow machine. */
constexpr int longestWait = 2200;
constexpr int noWait = 300;

class Slip final : public AppLinePrinter
{
public:
    Slip(const QString& printer, const QByteArray& text) : m_printer(printer), m_text(text) {}
    bool print() override { return printCopies(m_printer, "Bill", m_text, 1, {}); }

private:
    QString m_printer;
    QByteArray m_text;
};

/** A server that accepts connections, or lets the system accept them, and never answers. */
class SilentServer
{
public:
    SilentServer() : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in place = {};
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(place);
        auto* address = reinterpret_cast<sockaddr*>(&place);
        if (::bind(m_socket, address, size) == 0 && ::listen(m_socket, 20) == 0 &&
            ::getsockname(m_socket, address, &size) == 0)
            m_address = "127.0.0.1:" + QByteArray::number(ntohs(place.sin_port));
    }
    ~SilentServer() { close(); }
    Q_DISABLE_COPY(SilentServer)

    [[nodiscard]] const QByteArray& address() const { return m_address; }
    /** Closes the connections and the listening socket. */
    void close()
    {
        if (m_socket >= 0)
            ::close(m_socket);
        m_socket = -1;
    }

private:
    int m_socket;
    QByteArray m_address;
};

/** Prints and returns how long the window was blocked; -1 if a timer ran meanwhile. */
qint64 blockedBy(const QString& printer, const QByteArray& text, bool* good = nullptr)
{
    bool intruded = false;
    QTimer::singleShot(0, [&intruded] { intruded = true; });
    QElapsedTimer clock;
    clock.start();
    const bool done = SlipQueue::instance()->handOver({{SlipPurpose(), printer, "Bill", text}}).first().isGood();
    const qint64 blocked = intruded ? -1 : clock.elapsed();
    QCoreApplication::processEvents();
    if (good)
        *good = done;
    qInfo("%s: %lld ms", qPrintable(printer), blocked);
    return blocked;
}

QList<KeptSlip> keptSlips()
{
    const QDate today = QDate::currentDate();
    return SlipArchive::instance()->slips(today.addDays(-1), today);
}

KeptSlip newestSlip() { return keptSlips().value(0); }

void run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished(20000) && process.exitCode() == 0, qPrintable(program + process.readAll()));
}
} // namespace

/// Printing with print servers that fail in every way, and with tills that are killed.
class TestSlipQueue final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qunsetenv("ZAVEL_SPOOL_DIR"); }

    void init()
    {
        m_cups = std::make_unique<PrivateCups>();
        const QString problem = m_cups->start();
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        useServer(m_cups->address());
        const QString refused = m_cups->addRawQueue("Kasir", true);
        QVERIFY2(refused.isEmpty(), qPrintable(refused));
        m_folder = std::make_unique<QTemporaryDir>();
        SlipArchive::instance()->setFolder(m_folder->filePath("slips"));
    }

    void cleanup()
    {
        if (m_cups)
            m_cups->letGo();
        m_cups.reset();
        SlipArchive::instance()->setFolder(QString());
    }

    void aDeadServerHoldsTheTillForTwoSecondsOnce_data()
    {
        const auto row = addColumns<bool>("fails");
        row("silent", false); // takes the connection and never answers
        row("held", false);   // the real one, held still
        row("refuses", true); // nobody listens
        row("crashed", true); // the real one, killed
    }
    void aDeadServerHoldsTheTillForTwoSecondsOnce()
    {
        QFETCH(bool, fails);
        const QString fault = QTest::currentDataTag();
        SilentServer silent;
        if (fault == "silent" || fault == "refuses")
            useServer(silent.address());
        if (fault == "refuses")
            silent.close();
        if (fault == "held")
            m_cups->hold();
        if (fault == "crashed")
            m_cups->stop();

        QSignalSpy failures(SlipQueue::instance(), &SlipQueue::failedLater);
        bool good = false;
        const qint64 first = blockedBy(fault, "first", &good);
        QVERIFY2(first >= 0 && first < longestWait, qPrintable(QString::number(first)));
        QCOMPARE(good, !fails);
        const qint64 second = blockedBy(fault, "second", &good);
        QVERIFY2(second >= 0 && second < noWait, qPrintable(QString::number(second)));
        if (fails) {
            QCOMPARE(newestSlip().state, KeptSlip::Failed);
            QVERIFY(SlipQueue::instance()->waitingPrinters().isEmpty());
            QVERIFY(failures.isEmpty()); // told at once, in a box
            return;
        }
        QCOMPARE(newestSlip().state, KeptSlip::Waiting);
        QCOMPARE(SlipQueue::instance()->waitingPrinters(), QStringList({fault, fault}));
        // The server does not answer for ten seconds; then the slip fails with a message.
        QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, 15000);
        const auto told = failures.first().first().value<KeptSlip>();
        QVERIFY(told.state == KeptSlip::Failed && told.printer == fault && !told.reason.isEmpty());
        // Do not wait for the other one.
        m_cups->letGo();
        silent.close();
        QTRY_VERIFY_WITH_TIMEOUT(SlipQueue::instance()->waitingPrinters().isEmpty(), 15000);
    }

    void aDeadPrinterHoldsUpNoOther()
    {
        SilentServer silent;
        useServer(silent.address());
        QWidget bar;
        SlipStatus status(&bar);
        QVERIFY(status.isHidden());
        QVERIFY(blockedBy("Mati", "lost") < longestWait);
        useServer(m_cups->address());
        QVERIFY(blockedBy("Kasir", "alive") < 1500);
        QTRY_COMPARE(m_cups->printed(), QList<QByteArray>({"alive"}));
        QCOMPARE(status.text(), QString("1 slip waiting: Mati"));
        silent.close();
        QTRY_VERIFY_WITH_TIMEOUT(SlipQueue::instance()->waitingPrinters().isEmpty(), 15000);
        QTRY_COMPARE(status.text(), QString("1 slip was not printed: Mati"));
        QSignalSpy wanted(&status, &SlipStatus::listWanted);
        bar.show();
        QTest::mouseClick(&status, Qt::LeftButton);
        QCOMPARE(wanted.size(), 1);
        QVERIFY(status.isHidden());
    }

    void severalDeadKitchensAreWaitedForTogether()
    {
        m_cups->hold();
        QList<SlipQueue::Job> jobs;
        for (const char* kitchen : {"Grill", "Bar", "Wok"})
            jobs.append({SlipPurpose(), kitchen, "Menu", "order"});
        QElapsedTimer clock;
        clock.start();
        {
            const SlipQueue::Patience together;
            for (const SlipQueue::Verdict& verdict : SlipQueue::instance()->handOver(jobs))
                QCOMPARE(verdict.kind, SlipQueue::Verdict::OnItsWay);
            QVERIFY(SlipQueue::instance()->handOver({{SlipPurpose(), "Teppan", "Menu", "more"}}).first().isGood());
        }
        QVERIFY2(clock.elapsed() < longestWait, qPrintable(QString::number(clock.elapsed())));
        m_cups->letGo();
        QTRY_VERIFY_WITH_TIMEOUT(SlipQueue::instance()->waitingPrinters().isEmpty(), 15000);
    }

    void aListOfPrintersDoesNotFreezeAForm()
    {
        QCOMPARE(SlipSpooler::listPrinters().size(), 1);
        m_cups->hold();
        QElapsedTimer clock;
        clock.start();
        QVERIFY(SlipSpooler::listPrinters().isEmpty());
        QVERIFY2(clock.elapsed() < longestWait, qPrintable(QString::number(clock.elapsed())));
    }

    void aSlipThatTheServerGivesBackIsTold()
    {
        const QString server = QFile::decodeName(m_cups->address());
        run("/usr/sbin/cupsdisable", {"-h", server, "Kasir"});
        QSignalSpy failures(SlipQueue::instance(), &SlipQueue::failedLater);
        QVERIFY(Slip("Kasir", "soon cancelled").print());
        QCOMPARE(newestSlip().state, KeptSlip::Printed);
        run("/usr/bin/cancel", {"-h", server, "-a"});
        QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, 10000);
        QCOMPARE(newestSlip().state, KeptSlip::GivenBack);
        QVERIFY(!newestSlip().reason.isEmpty());
    }

    void aCopySaysThatItIsOne()
    {
        QVERIFY(Slip("Kasir", "the bill\n").print());
        const KeptSlip bill = newestSlip();
        QVERIFY(SlipQueue::instance()->printAgain(bill.id, "Kasir"));
        QVERIFY(SlipQueue::instance()->printAgain(newestSlip().id, "Kasir")); // a copy of the copy
        QTRY_COMPARE(m_cups->printed().size(), 3);
        const QByteArray second = m_cups->printed().last();
        QVERIFY2(second.startsWith("COPY 2  ") && second.endsWith("\nthe bill\n"), second.constData());
        QCOMPARE(second.count("COPY"), 1);
        QCOMPARE(newestSlip().copyOf, bill.id);
        QCOMPARE(newestSlip().copy, 2);
    }

    void withoutAPrinterASlipIsKeptAndShown()
    {
        const ModalDriver person;
        QSignalSpy shown(SlipQueue::instance(), &SlipQueue::unsent);
        SlipQueue::Job job{SlipPurpose(), "GenericDotMatrix", "Bill", "the bill"};
        job.purpose.withoutPrinter = true;
        QVERIFY(SlipQueue::tell(SlipQueue::instance()->handOver({job}).first(), job));
        QTRY_COMPARE(shown.size(), 1);
        QCOMPARE(newestSlip().state, KeptSlip::Unsent);
        QCOMPARE(SlipArchive::instance()->bytes(newestSlip().id), QByteArray("the bill"));
        QCOMPARE(person.texts(), QStringList());
    }

    void aFullDiskKeepsNoSlipFromBeingPrinted()
    {
        QSignalSpy troubles(SlipArchive::instance(), &SlipArchive::trouble);
        QVERIFY(Slip("Kasir", "before").print());
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before = {};
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit full = before;
        // The line of the second slip is torn in the middle.
        full.rlim_cur = rlim_t(
            QFileInfo(m_folder->filePath("slips/" + QDate::currentDate().toString("yyyyMMdd") + ".slips")).size() +
            100);
        setrlimit(RLIMIT_FSIZE, &full);
        const bool printed = Slip("Kasir", "on a full disk").print() && Slip("Kasir", "again").print();
        setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(printed);
        QVERIFY(Slip("Kasir", "after").print());
        QTRY_COMPARE(m_cups->printed(), QList<QByteArray>({"before", "on a full disk", "again", "after"}));
        QTRY_COMPARE(troubles.size(), 1);
        QCOMPARE(keptSlips().size(), 4);
        // The next start knows what got to the disk, whole.
        SlipArchive::instance()->setFolder(m_folder->filePath("slips"));
        QCOMPARE(keptSlips().size(), 2);
        for (const KeptSlip& slip : keptSlips())
            QCOMPARE(slip.state, KeptSlip::Printed);
    }

    void whatAKilledTillLeftBehindIsPrintedOnce()
    {
        constexpr int kills = 12;
        int slips = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QProcess till;
            till.start(SLIP_TILL_PROGRAM, {m_folder->filePath("slips"), QString::number(kill)});
            QVERIFY(till.waitForReadyRead(10000));
            // Anywhere within the first slips: a slip takes some milliseconds.
            QTest::qSleep(QRandomGenerator::global()->bounded(5, 60));
            till.kill();
            QVERIFY(till.waitForFinished(5000));
            QVERIFY(takeOver());
            slips = keptSlips().size();
        }
        qInfo("%d kills, %d slips", kills, slips);
        QVERIFY(slips > 0);
        compareArchiveWithPaper();
    }

    void aJobThatNeverGotItsSlipIsTakenBack()
    {
        // The job request waits at a suspended server; the till dies; then the server creates the job.
        m_cups->hold();
        QProcess till;
        till.start(SLIP_TILL_PROGRAM, {m_folder->filePath("slips"), "held"});
        QVERIFY(till.waitForReadyRead(10000));
        QTRY_VERIFY(!keptSlips().isEmpty());
        QTest::qSleep(500);
        till.kill();
        QVERIFY(till.waitForFinished(5000));
        m_cups->letGo();
        QVERIFY(takeOver());
        compareArchiveWithPaper();
    }

private:
    void useServer(const QByteArray& address) { qputenv("CUPS_SERVER", address); }
    [[nodiscard]] bool takeOver() const
    {
        QProcess heir;
        heir.start(SLIP_TILL_PROGRAM, {m_folder->filePath("slips"), "takeover"});
        return heir.waitForFinished(20000) && heir.exitStatus() == QProcess::NormalExit && heir.exitCode() == 0;
    }

    /** Every slip of the archive came out once, and nothing else did. */
    void compareArchiveWithPaper() const
    {
        const QList<KeptSlip> kept = keptSlips();
        QTRY_COMPARE_WITH_TIMEOUT(m_cups->printed().size(), kept.size(), 20000);
        QTest::qWait(300); // time for an unwanted duplicate to appear
        QHash<QByteArray, int> onPaper;
        for (const QByteArray& paper : m_cups->printed())
            ++onPaper[paper];
        for (const KeptSlip& slip : kept) {
            QCOMPARE(slip.state, KeptSlip::Printed);
            QCOMPARE(onPaper.value(SlipArchive::instance()->bytes(slip.id)), 1);
        }
    }

    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestSlipQueue)
#include "tst_slip_queue.moc"
