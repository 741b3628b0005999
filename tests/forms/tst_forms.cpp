#include "forms/AllForms.h"
#include "forms/FormFaults.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/InterfaceLanguage.h"
#include "support/DatabaseTest.h"

#include <QStandardPaths>

namespace
{
// The room for a page on a 1366 x 768 screen, and for a dialog with its frame on a 1024 x 768 screen.
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

/** Checks every page and dialog with the normal font and one a quarter larger: tab order, labels and layout. */
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
            // Indonesian texts are longer.
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
        showForm(shown.get());
        QCoreApplication::processEvents();
        QStringList faults;
        if (shown->width() > room.width() || shown->height() > room.height())
            faults.append(QString("too large: %1x%2").arg(shown->width()).arg(shown->height()));
        auto* pages = shown->findChild<QTabWidget*>();
        for (int page = 0; page < (pages ? std::max(1, pages->count()) : 1); ++page) {
            if (pages)
                pages->setCurrentIndex(page);
            QCoreApplication::processEvents();
            // The buttons of the on-screen keyboard are for touch only and must not take the focus from the field.
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
        // Line by line, because the test framework truncates long messages.
        for (const QString& fault : qAsConst(faults))
            qWarning("%s", qPrintable(fault));
        QVERIFY(faults.isEmpty());
    }

private:
    std::unique_ptr<InterfaceLanguage> m_language;
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
