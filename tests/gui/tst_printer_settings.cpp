#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/printing/configuration/DialogCashierAndKitchenPrinter.h"
#include "pos/printing/configuration/DialogFilterJenisItem.h"
#include "pos/printing/configuration/DialogKitchenFoodPrinter.h"
#include "pos/printing/configuration/TabKitchenPrinter.h"
#include "pos/printing/printer/DialogPrinter.h"
#include "pos/printing/slips/SlipArchive.h"
#include "support/DatabaseTest.h"

#include <QJsonDocument>
#include <QJsonObject>

Q_DECLARE_METATYPE(std::function<std::unique_ptr<QDialog>()>)

namespace
{
template <class Field>
Field* field(const QWidget* form, const char* name)
{
    return form->findChild<Field*>(QLatin1String(name));
}

void choose(const QWidget* form, const char* name, const QString& text)
{
    auto* box = field<QComboBox>(form, name);
    const int index = box->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    box->setCurrentIndex(index);
}
} // namespace

class TestPrinterSettings : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        listPrinters("Kasir\nDapur\nBar\n");
        run("DELETE FROM appconfig");
        run("DELETE FROM printer_type");
        insert("printer_type", "printer_type='EPSON-TM-T88III', cut_papper_cmd='27#109'");
        insert("printer_type", "printer_type='GENERIC-ESC-POS', cut_papper_cmd='29#V#66#0'");
        addSetting("cashier_printer", {{"printer_name", "Dapur"},
                                       {"printer_type", "GENERIC-ESC-POS"},
                                       {"auto_cutter", "No"},
                                       {"notes", "Thank You"},
                                       {"no_of_copy", "1"},
                                       {"column_paper", "40"},
                                       {"no_of_blank_lines", "4"},
                                       {"format", "{items}"}});
        addSetting("kitchen_printer_1",
                   {{"kitchen_name", "Kitchen 1"}, {"printer_name", "Dapur"}, {"auto_print", "Yes"}});
    }

private slots:
    void theCashierFormKeepsEverySettingAsText()
    {
        DialogCashierAndKitchenPrinter form;
        QCOMPARE(form.windowTitle(), QString("Cashier Printer Form"));
        QCOMPARE(field<QComboBox>(&form, "ddlPrinter")->currentText(), QString("Dapur"));
        QCOMPARE(field<QComboBox>(&form, "ddlPrinterType")->currentText(), QString("GENERIC-ESC-POS"));
        QCOMPARE(field<QComboBox>(&form, "ddlAutoCut")->currentText(), QString("No"));
        QCOMPARE(field<QComboBox>(&form, "ddlNoCopy")->count(), 5);
        QCOMPARE(shown(&form, "txtCol"), QString("40"));
        QCOMPARE(field<QPlainTextEdit>(&form, "txtNotes")->toPlainText(), QString("Thank You"));

        choose(&form, "ddlPrinter", "Kasir");
        choose(&form, "ddlPrinterType", "EPSON-TM-T88III");
        choose(&form, "ddlAutoCut", "Yes");
        choose(&form, "ddlNoCopy", "3");
        field<QPlainTextEdit>(&form, "txtNotes")->setPlainText("Terima kasih");
        typeInto(&form, "txtCol", "32");
        typeInto(&form, "txtBlankLines", "6");
        form.accept();
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(storedMembers("cashier_printer"), (QJsonObject{{"printer_name", "Kasir"},
                                                                {"printer_type", "EPSON-TM-T88III"},
                                                                {"auto_cutter", "Yes"},
                                                                {"notes", "Terima kasih"},
                                                                {"no_of_copy", "3"},
                                                                {"column_paper", "32"},
                                                                {"no_of_blank_lines", "6"},
                                                                {"format", "{items}"}}));
    }

    void aPrinterThatHasGoneGivesWayToTheFirst()
    {
        listPrinters("Bar\nKasir\n");
        QCOMPARE(
            field<QComboBox>(std::make_unique<DialogCashierAndKitchenPrinter>().get(), "ddlPrinter")->currentText(),
            QString("Bar"));
    }

    void withoutAnyPrinterTheStoredOneStays()
    {
        QFile::remove(m_spool->filePath("printers"));
        // And so does what the form does not show.
        const QJsonObject before = storedMembers("cashier_printer");
        DialogCashierAndKitchenPrinter().accept();
        QCOMPARE(storedMembers("cashier_printer"), before);
    }

    void aStaleCashierFormIsToldAndStaysOpen()
    {
        DialogCashierAndKitchenPrinter form;
        form.show();
        run("UPDATE appconfig SET version = 2 WHERE appkey = 'cashier_printer'");
        field<QPlainTextEdit>(&form, "txtNotes")->setPlainText("mine");
        form.accept();
        QCOMPARE(m_people->lastTitle(), QString("Error!"));
        QVERIFY2(m_people->lastText().startsWith("Table: appconfig has been updated"),
                 qPrintable(m_people->lastText()));
        QVERIFY(form.isVisible());
        QCOMPARE(field<QPlainTextEdit>(&form, "txtNotes")->toPlainText(), QString("mine"));
        QCOMPARE(storedMembers("cashier_printer").value("notes"), QJsonValue("Thank You"));
    }

    void withoutItsRowTheCashierFormSavesNothing()
    {
        run("DELETE FROM appconfig WHERE appkey = 'cashier_printer'");
        DialogCashierAndKitchenPrinter form;
        typeInto(&form, "txtCol", "32");
        typeInto(&form, "txtBlankLines", "6");
        form.accept();
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error!"));
        QCOMPARE(count("appconfig WHERE appkey = 'cashier_printer'"), 0);
    }

    void aKitchenIsAddedEditedAndDeleted()
    {
        TabKitchenPrinter page;
        showPage(&page);
        QVERIFY(field<QLineEdit>(&page, "txtFilter")->hasFocus());
        auto* grid = field<QTableView>(&page, "tblKitchenPrinter");
        QCOMPARE(grid->columnWidth(0), 300);
        QCOMPARE(grid->columnWidth(1), 300);

        m_people->expect<DialogKitchenFoodPrinter>([](DialogKitchenFoodPrinter* form) {
            QCOMPARE(form->windowTitle(), QString("Kitchen Printer Form"));
            typeInto(form, "txtKitchenName", "Grill");
            choose(form, "ddlPrinter", "Bar");
            typeInto(form, "txtKodeJenisItems", "FOOD,GRILL");
            QTest::keyClick(form, Qt::Key_Return);
        });
        page.on_btnAdd_clicked();
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(grid->model()->rowCount(), 2);
        const QString key = value("SELECT appkey FROM appconfig WHERE appkey LIKE 'kitchen_printer_2%'");
        QVERIFY2(QDateTime::fromString(key, "'kitchen_printer_'yyyy_MM_dd_hh_mm_ss").isValid(), qPrintable(key));
        QCOMPARE(storedMembers(key), (QJsonObject{{"kitchen_name", "Grill"},
                                                  {"printer_name", "Bar"},
                                                  {"printer_type", "EPSON-TM-T88III"},
                                                  {"auto_cutter", "No"},
                                                  {"auto_print", "Yes"},
                                                  {"no_of_copy", "1"},
                                                  {"column_paper", "40"},
                                                  {"no_of_blank_lines", "4"},
                                                  {"kode_jenis_item", "FOOD,GRILL"}}));
        const auto rowOf = [grid](const QString& name) { return cells(*grid->model(), 0).value(0) == name ? 0 : 1; };
        QCOMPARE(cells(*grid->model(), rowOf("Kitchen 1")).value(2), QString("[ALL]"));
        QCOMPARE(cells(*grid->model(), rowOf("Grill")).value(2), QString("FOOD,GRILL"));

        m_people->expect<DialogKitchenFoodPrinter>([](DialogKitchenFoodPrinter* form) {
            QCOMPARE(form->windowTitle(), QString("Kitchen Printer Form: Grill"));
            QVERIFY(field<QCheckBox>(form, "cbAutoPrint")->isChecked());
            click(form, "btnClearJenisItem");
            field<QCheckBox>(form, "cbAutoPrint")->setChecked(false);
            QTest::keyClick(form, Qt::Key_Return);
        });
        grid->selectRow(rowOf("Grill"));
        page.on_btnEdit_clicked();
        QCOMPARE(storedMembers(key).value("auto_print"), QJsonValue("No"));
        QCOMPARE(cells(*grid->model(), rowOf("Grill")).value(2), QString("[ALL]"));

        m_people->answer(QMessageBox::Yes);
        grid->selectRow(rowOf("Grill"));
        page.on_btnDelete_clicked();
        QCOMPARE(m_people->texts(), QStringList("Are you sure you want to delete this kitchen: Grill ?"));
        QCOMPARE(m_people->lastTitle(), QString("Delete"));
        QCOMPARE(grid->model()->rowCount(), 1);
        QCOMPARE(kitchens(), 1);
        QVERIFY(m_people->finished());
    }

    void aKitchenNeedsAName()
    {
        DialogKitchenFoodPrinter form;
        form.show();
        typeInto(&form, "txtKitchenName", "  ");
        field<QLineEdit>(&form, "txtCol")->setFocus();
        form.accept();
        QCOMPARE(m_people->texts(), QStringList("Enter the kitchen name\r\n"));
        QCOMPARE(form.focusWidget(), field<QLineEdit>(&form, "txtKitchenName"));
        QCOMPARE(kitchens(), 1);
    }

    void twoKitchensOfOneSecondCollide()
    {
        // The real clock is used, so all keys of the next 30 seconds are occupied.
        const QDateTime now = QDateTime::currentDateTime();
        for (int second = 0; second < 30; ++second)
            addSetting(EntityConfigKitchenPrinter::keyFor(now.addSecs(second)), {{"kitchen_name", "Taken"}});
        DialogKitchenFoodPrinter form;
        form.show();
        typeInto(&form, "txtKitchenName", "Late");
        form.accept();
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error!"));
        QVERIFY2(m_people->lastText().contains("appconfig_appkey_key"), qPrintable(m_people->lastText()));
        QVERIFY(form.isVisible());

        // A second later the same form goes through.
        run("DELETE FROM appconfig WHERE appkey LIKE 'kitchen_printer_2%'");
        form.accept();
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(kitchens(), 2);
    }

    void kitchensAreFoundByNameOrByPrinter()
    {
        addSetting("kitchen_printer_2", {{"kitchen_name", "Bar"}, {"printer_name", "Kasir"}});
        TabKitchenPrinter page;
        const auto* grid = field<QTableView>(&page, "tblKitchenPrinter");
        const auto search = [&page](const char* text) {
            field<QLineEdit>(&page, "txtFilter")->setText(text);
            page.on_btnSearch_clicked();
        };
        search("AR");
        QCOMPARE(grid->model()->rowCount(), 1);
        QCOMPARE(cells(*grid->model(), 0).value(0), QString("Bar"));
        choose(&page, "ddlFilter", "Printer");
        search("dap");
        QCOMPARE(grid->model()->rowCount(), 1);
        QCOMPARE(cells(*grid->model(), 0).value(0), QString("Kitchen 1"));
        search("bar");
        QCOMPARE(grid->model()->rowCount(), 0);
    }

    void itemTypesArePickedFromTheList()
    {
        run("TRUNCATE jenis_item CASCADE");
        run("INSERT INTO jenis_item (kode, nama, version) VALUES "
            "('DRINK', 'Drinks', 1), ('FOOD', 'Food', 1), ('GRILL', 'From the grill', 1)");
        DialogKitchenFoodPrinter form;
        auto* codes = field<QLineEdit>(&form, "txtKodeJenisItems");
        codes->setText("GRILL, FOOD");
        m_people->expect<DialogFilterJenisItem>([](DialogFilterJenisItem* dialog) {
            const auto* grid = field<QTableView>(dialog, "tblJenisItem");
            QCOMPARE(grid->model()->rowCount(), 3);
            QCOMPARE(dialog->selectedCodes(), QString("GRILL"));
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                              grid->visualRect(grid->model()->index(0, 1)).center());
            dialog->accept();
        });
        click(&form, "btnBrowseJenisItem");
        QCOMPARE(codes->text(), QString("DRINK,GRILL"));

        m_people->expect<DialogFilterJenisItem>([](DialogFilterJenisItem* dialog) {
            field<QTableView>(dialog, "tblJenisItem")->selectAll();
            dialog->reject();
        });
        click(&form, "btnBrowseJenisItem");
        QCOMPARE(codes->text(), QString("DRINK,GRILL"));
        QVERIFY(m_people->finished());
    }

    void aTestSlipShowsTheFormAsItStands_data()
    {
        const auto row = addColumns<std::function<std::unique_ptr<QDialog>()>>("open");
        row("cashier", std::function([]() -> std::unique_ptr<QDialog> {
                return std::make_unique<DialogCashierAndKitchenPrinter>();
            }));
        row("kitchen",
            std::function([]() -> std::unique_ptr<QDialog> { return std::make_unique<DialogKitchenFoodPrinter>(); }));
    }
    void aTestSlipShowsTheFormAsItStands()
    {
        QFETCH(std::function<std::unique_ptr<QDialog>()>, open);
        const std::unique_ptr<QDialog> form = open();
        showForm(form.get());
        const QString saved = value("SELECT string_agg(appvalue, '') FROM appconfig");
        choose(form.get(), "ddlPrinter", "Bar");
        choose(form.get(), "ddlPrinterType", "EPSON-TM-T88III");
        choose(form.get(), "ddlAutoCut", "Yes");
        choose(form.get(), "ddlNoCopy", "3");
        typeInto(form.get(), "txtCol", "24");
        QTest::keyClick(form.get(), Qt::Key_F8);
        QCOMPARE(m_people->texts(), QStringList());

        const QByteArray bytes = slips().join(QString()).toUtf8();
        QVERIFY(bytes.endsWith("\n\x1Bm"));
        QCOMPARE(bytes.count("\x1Bm"), 1);
        QVERIFY(bytes.contains("\x1B"
                               "E1This line is bold.\x1B"
                               "E0\n"));
        const QStringList lines = QString::fromUtf8(bytes).split('\n');
        QCOMPARE(lines.first(), QString("123456789012345678901234"));
        for (const QString& line : lines) {
            if (!line.contains(QChar(0x1B)))
                QVERIFY2(line.size() <= 24, qPrintable(line));
        }
        for (const char* part : {"Bar", "EPSON-TM-T88III", "ABCDEFGHIJKLMNOPQRSTUVWX\nYZ", "Rp 1.234.567,89", "é"})
            QVERIFY2(bytes.contains(part), part);
        const KeptSlip kept = SlipArchive::instance()->slips(QDate::currentDate(), QDate::currentDate()).value(0);
        QCOMPARE(kept.printer, QString("Bar"));
        QCOMPARE(int(kept.kind), int(KeptSlip::Test));
        QCOMPARE(kept.columns, 24);
        // Nothing was saved.
        QCOMPARE(value("SELECT string_agg(appvalue, '') FROM appconfig"), saved);
        QVERIFY(form->isVisible());
    }

    void thePrintersAreOfferedAndNothingIsSent()
    {
        DialogPrinter form;
        const auto* printers = field<QComboBox>(&form, "ddlPrinter");
        QCOMPARE(printers->itemText(0), QString("Kasir[default]"));
        QCOMPARE(printers->itemData(0).toString(), QString("Kasir"));
        QCOMPARE(printers->itemText(1), QString("Dapur"));
        QCOMPARE(printers->itemData(1).toString(), QString("Dapur"));
        click(&form, "pushButton");
        QCOMPARE(slips(), QStringList());
    }

    void aTestSlipThatFailsIsTold()
    {
        DialogCashierAndKitchenPrinter form;
        form.show();
        listPrinters("Kasir\n");
        choose(&form, "ddlPrinter", "Bar");
        click(&form, "btnTestSlip");
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY2(m_people->lastText().contains("Error Opening Printer:Bar"), qPrintable(m_people->lastText()));
        QVERIFY(form.isVisible());
    }

    void aKitchenMayHaveNoPrinter()
    {
        DialogKitchenFoodPrinter form;
        QCOMPARE(field<QComboBox>(&form, "ddlPrinter")->currentText(), QString("Kasir"));
        typeInto(&form, "txtKitchenName", "Grill");
        choose(&form, "ddlPrinter", "(no printer: the kitchen's screen)");
        QVERIFY(!field<QPushButton>(&form, "btnTestSlip")->isEnabled());
        form.accept();
        const QString key = value("SELECT appkey FROM appconfig WHERE appkey LIKE 'kitchen_printer_2%'");
        QCOMPARE(storedMembers(key).value("printer_name"), QJsonValue(""));

        // The settings are shown as saved; a printer that no longer exists is kept.
        auto* kitchens = service<BusinessPrinterConfig>("Printer Config");
        EntityPool pool;
        const EntityPoolScope scope(pool);
        DialogKitchenFoodPrinter again;
        again.setEntity(kitchens->getConfig(key));
        QVERIFY(field<QComboBox>(&again, "ddlPrinter")->currentText().startsWith("(no printer"));
        listPrinters("Bar\n");
        DialogKitchenFoodPrinter other;
        other.setEntity(kitchens->getConfig("kitchen_printer_1"));
        QCOMPARE(field<QComboBox>(&other, "ddlPrinter")->currentText(), QString("Bar"));
    }

    void theFormSaysWhatTheCutLacks()
    {
        insert("printer_type", "printer_type='WHOLE', cut_papper_cmd='29#V#66#1'");
        DialogCashierAndKitchenPrinter form;
        const auto* told = field<QLabel>(&form, "lblCut");
        QVERIFY2(told->text().contains("lacks its end") && told->text().endsWith("Choose WHOLE instead."),
                 qPrintable(told->text()));
        choose(&form, "ddlPrinterType", "WHOLE");
        QVERIFY2(told->text().startsWith("Feeds the paper"), qPrintable(told->text()));
    }

private:
    void addSetting(const QString& key, const QJsonObject& members) const
    {
        run(QString("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('%1', true, '%2', 1)")
                .arg(key, QString::fromUtf8(QJsonDocument(members).toJson())));
    }

    [[nodiscard]] QJsonObject storedMembers(const QString& key) const
    {
        const QString text = value("SELECT appvalue FROM appconfig WHERE appkey = '" + key + "'");
        return QJsonDocument::fromJson(text.toUtf8()).object();
    }

    [[nodiscard]] int kitchens() const { return count("appconfig WHERE appkey LIKE 'kitchen%'"); }
};

QTEST_MAIN(TestPrinterSettings)
#include "tst_printer_settings.moc"
