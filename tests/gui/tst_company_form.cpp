#include "pos/masterdata/company/DialogDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/masterdata/company/QPictureLabel.h"
#include "support/Hands.h"

#include <QBuffer>
#include <QFileDialog>
#include <QTemporaryDir>

namespace
{
QByteArray pngOf(const QColor& color)
{
    QImage image(400, 100, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

EntityDataPerusahaan* warung(const QByteArray& logo = QByteArray())
{
    auto* profile = new EntityDataPerusahaan;
    profile->setNamaPerusahaan("Warung");
    profile->setAlamat("Harbour street 4");
    profile->setTelp("0812 555");
    if (!logo.isNull()) {
        profile->setLogo(new EntityImage(profile));
        profile->getLogo()->setId(5);
        profile->getLogo()->setImageData(logo);
    }
    return profile;
}

QColor colorOf(const QPixmap& picture) { return picture.toImage().pixelColor(5, 5); }
} // namespace

/** The form of the company profile. */
class TestCompanyForm : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_people = std::make_unique<ModalDriver>();
        m_form = std::make_unique<DialogDataPerusahaan>();
        m_logo = m_form->findChild<QPictureLabel*>("lblImage");
        showForm(m_form.get());
    }
    void cleanup()
    {
        m_form.reset();
        m_people.reset();
    }

    void nameAddressAndPhoneAreRequired()
    {
        m_form->accept();
        QCOMPARE(m_people->texts(), QStringList{"Enter company name\r\nEnter company address\r\nEnter phone no\r\n"});
    }

    void theStoredLogoIsShownWholeAndKept()
    {
        m_form->setEntity(warung(pngOf(Qt::red)));
        QCOMPARE(colorOf(m_logo->image()), QColor(Qt::red));
        QCOMPARE(m_logo->image().size(), QSize(400, 100));
        QVERIFY(m_logo->pixmap(Qt::ReturnByValue).width() <= m_logo->width());
        const auto* profile = static_cast<EntityDataPerusahaan*>(m_form->getEntity());
        QCOMPARE(profile->getNamaPerusahaan(), QString("Warung"));
        QCOMPARE(profile->getLogo()->getId(), 5);
        QCOMPARE(profile->getLogo()->getImageName(), QString("company_logo"));
        QCOMPARE(QImage::fromData(profile->getLogo()->getImageData(), "PNG").size(), QSize(400, 100));
    }

    void aRestaurantWithoutALogoStaysWithout()
    {
        m_form->setEntity(warung());
        QVERIFY(m_logo->image().isNull());
        QVERIFY(!static_cast<EntityDataPerusahaan*>(m_form->getEntity())->getLogo());
    }

    void aChosenFileIsTakenByteForByte()
    {
        // Bytes after the image survive only if the file itself is stored.
        const QByteArray bytes = pngOf(Qt::blue) + "trailer";
        choose("logo.png", bytes);
        QCOMPARE(colorOf(m_logo->image()), QColor(Qt::blue));
        const auto* profile = static_cast<EntityDataPerusahaan*>(m_form->getEntity());
        QCOMPARE(profile->getLogo()->getImageData(), bytes);
        QVERIFY(!profile->getLogo()->isSaved());
    }

    void aFileThatIsNoPictureIsTold()
    {
        m_form->setEntity(warung(pngOf(Qt::red)));
        choose("broken.png", "this is text");
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(colorOf(m_logo->image()), QColor(Qt::red));
    }

    void resetBringsTheProgramsPictureBack()
    {
        choose("logo.png", pngOf(Qt::blue));
        QTest::mouseClick(m_form->findChild<QPushButton*>("btnClear"), Qt::LeftButton);
        const QImage placeholder(":/images/brintel-200px.png");
        QCOMPARE(m_logo->image().toImage().convertToFormat(QImage::Format_ARGB32),
                 placeholder.convertToFormat(QImage::Format_ARGB32));
        const auto* profile = static_cast<EntityDataPerusahaan*>(m_form->getEntity());
        QCOMPARE(QImage::fromData(profile->getLogo()->getImageData(), "PNG").size(), placeholder.size());
    }

private:
    void choose(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        m_people->expect<QFileDialog>([path = file.fileName()](QFileDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Open Image"));
            QCOMPARE(dialog->nameFilters(), QStringList{"Image Files (*.png)"});
            typeInto(dialog, "fileNameEdit", path);
            QTest::keyClick(dialog->findChild<QWidget*>("fileNameEdit"), Qt::Key_Return);
        });
        QTest::mouseClick(m_form->findChild<QPushButton*>("btnLoadImage"), Qt::LeftButton);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<DialogDataPerusahaan> m_form;
    QPictureLabel* m_logo = nullptr;
};

QTEST_MAIN(TestCompanyForm)
#include "tst_company_form.moc"
