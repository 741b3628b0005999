#include "app/widgets/AppEntityModel.h"
#include "app/widgets/TimeAgo.h"
#include "support/Rows.h"

/** How long guests have been waiting, in the words of the kitchen's screen and of its slips. */
class TestElapsed : public QObject
{
    Q_OBJECT

private slots:
    void screenAndSlipsClimbTheSameLadder_data()
    {
        addColumns<qint64, QString, QString>("seconds", "english", "indonesian");
        const auto row = [](qint64 seconds, const char* english, const char* indonesian) {
            addRow(qPrintable(QString::number(seconds)), seconds, QString(english), QString(indonesian));
        };
        row(-3, "-3 second", "-3 detik");
        row(0, "0 second", "0 detik");
        row(1, "1 second", "1 detik");
        row(2, "2 second", "2 detik");
        row(59, "59 second", "59 detik");
        row(60, "1 minute", "1 menit");
        row(119, "1 minute", "1 menit");
        row(120, "2 minutes", "2 menit");
        row(2699, "44 minutes", "44 menit");
        row(2700, "1 hour", "1 jam");
        row(5399, "1 hour", "1 jam");
        row(5400, "1 hours", "1 jam");
        row(7200, "2 hours", "2 jam");
        row(86399, "23 hours", "23 jam");
        row(86400, "yesterday", "kemaren");
        row(172799, "yesterday", "kemaren");
        row(172800, "2 day", "2 hari");
        row(2591999, "29 day", "29 hari");
        row(2592000, "1 month", "1 bulan");
        row(60 * 86400, "2 months", "2 bulan");
        row(31103999, "11 months", "11 bulan");
        row(31104000, "1 year", "1 tahun");
        row(730 * 86400, "2 years", "2 tahun");
    }
    void screenAndSlipsClimbTheSameLadder()
    {
        QFETCH(qint64, seconds);
        QFETCH(QString, english);
        const QDateTime now(QDate(2026, 11, 21), QTime(21, 30));
        const QDateTime moment = now.addSecs(-seconds);
        QCOMPARE(timeAgo(moment, now, TimeAgoWords::onScreen()), english);
        QTEST(timeAgo(moment, now, TimeAgoWords::onSlips()), "indonesian");
        // Far from a limit, the grid shows the same text.
        if (seconds == 7200)
            QCOMPARE(AppEntityModel::elapsedText(QDateTime::currentDateTime().addSecs(-seconds)), english);
    }
};

QTEST_MAIN(TestElapsed)
#include "tst_elapsed.moc"
