#include "forms/AllForms.h"
#include "forms/FormFaults.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/InterfaceLanguage.h"
#include "support/DatabaseTest.h"

#include <QStandardPaths>

namespace
{
// What a screen of 1366 x 768 leaves to a page, and one of 1024 x 768 to a dialog with its frame.
constexpr QSize pageRoom(1130, 640);
constexpr QSize dialogRoom(1004, 720);
constexpr QSize screenRoom(1366, 768);

QSize roomOf(const QWidget* form)
{
    if (qobject_cast<const KorTab*>(form))
        return pageRoom;
    return form->inherits("QMainWindow") ? screenRoom : dialogRoom;
}
} // namespace

/** Every screen of the program, at the house's font and a quarter larger, under the keys and under the ruler. */
class TestForms : public DatabaseTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepDatabase();
        HouseStyle::apply(*qApp);
        openShopForForms(*m_database);
        m_language = std::make_unique<InterfaceLanguage>(LANGUAGES_FOLDER, nullptr);
    }
    void cleanupTestCase() { m_language.reset(); }

    void everyFormIsWorkedWithoutAMouseAndReadWithoutGuessing_data()
    {
        const auto row = addColumns<int, double, QString>("form", "pointSize", "language");
        for (int form = 0; form < allForms().size(); ++form) {
            row(allForms()[form].name, form, 11.0, "en");
            row(allForms()[form].name + " at 125 %", form, 13.75, "en");
            // Its words are longer.
            row(allForms()[form].name + " in Indonesian at 125 %", form, 13.75, "id");
        }
    }
    void everyFormIsWorkedWithoutAMouseAndReadWithoutGuessing()
    {
        QFETCH(int, form);
        QFETCH(double, pointSize);
        QFETCH(QString, language);
        m_language->load(language);
        QFont font = QApplication::font();
        font.setPointSizeF(pointSize);
        QApplication::setFont(font);
        const std::unique_ptr<QWidget> shown = allForms()[form].make();
        const QSize room = roomOf(shown.get());
        shown->setWindowState(Qt::WindowNoState);
        shown->resize(qobject_cast<KorTab*>(shown.get()) ? room : shown->size().boundedTo(room));
        shown->show();
        shown->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shown.get()));
        QCoreApplication::processEvents();
        QStringList faults;
        if (shown->width() > room.width() || shown->height() > room.height())
            faults.append(QString("too large: %1x%2").arg(shown->width()).arg(shown->height()));
        auto* pages = shown->findChild<QTabWidget*>();
        for (int page = 0; page < (pages ? std::max(1, pages->count()) : 1); ++page) {
            if (pages)
                pages->setCurrentIndex(page);
            QCoreApplication::processEvents();
            // The keys of the keyboard on the screen are for a finger, and leave the field to be written in alone.
            if (allForms()[form].name != "DialogKeyboard")
                faults += tabFaults(shown.get());
            faults += labelFaults(shown.get()) + roomFaults(shown.get());
            if (qEnvironmentVariableIsSet("FORM_PICTURES"))
                shown->grab().save(
                    QString("%1/%2-%3-%4.png")
                        .arg(qEnvironmentVariable("FORM_PICTURES"), language + '-' + allForms()[form].name)
                        .arg(pointSize)
                        .arg(page));
        }
        for (const SeenBox& box : m_people->boxes())
            faults.append("box: " + box.text);
        faults.removeDuplicates();
        // Line by line: a message of the test framework has its end.
        for (const QString& fault : qAsConst(faults))
            qWarning("%s", qPrintable(fault));
        QVERIFY(faults.isEmpty());
    }

private:
    std::unique_ptr<InterfaceLanguage> m_language;
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
