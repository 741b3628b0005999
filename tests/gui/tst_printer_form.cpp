#include "pos/printing/printer/DialogPrinter.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

class TestPrinterForm final : public QObject
{
    Q_OBJECT

private slots:
    void thePrintersAreOfferedAndNothingIsSent()
    {
        const QTemporaryDir folder;
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(folder.path()));
        QFile names(folder.filePath("printers"));
        QVERIFY(names.open(QIODevice::WriteOnly));
        names.write("Kasir\nDapur\n");
        names.close();

        DialogPrinter form;
        const auto* printers = form.findChild<QComboBox*>("ddlPrinter");
        QCOMPARE(printers->count(), 2);
        QCOMPARE(printers->itemText(0), QString("Kasir[default]"));
        QCOMPARE(printers->itemData(0).toString(), QString("Kasir"));
        QCOMPARE(printers->itemText(1), QString("Dapur"));
        QCOMPARE(printers->itemData(1).toString(), QString("Dapur"));

        QTest::mouseClick(form.findChild<QPushButton*>("pushButton"), Qt::LeftButton);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("printers"));
    }
};

QTEST_MAIN(TestPrinterForm)
#include "tst_printer_form.moc"
