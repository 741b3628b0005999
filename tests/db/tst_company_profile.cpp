#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "support/DatabaseTest.h"

/** The restaurant's own data and its logo. */
class TestCompanyProfile : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override { m_company = service<BusinessDataPerusahaan>("Company Profile"); }

private slots:
    void aLogoSavedAgainReplacesTheFormer()
    {
        QByteArray everyByte;
        for (int byte = 0; byte < 256; ++byte)
            everyByte.append(char(byte));
        for (const QByteArray& bytes : {QByteArray("first"), everyByte}) {
            EntityDataPerusahaan* profile = m_company->getData();
            QVERIFY(profile && profile->getLogo());
            profile->setNamaPerusahaan("Warung " + QString::number(bytes.size()));
            profile->getLogo()->setImageData(bytes);
            QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
        }
        const EntityDataPerusahaan* profile = m_company->getData();
        QCOMPARE(profile->getNamaPerusahaan(), QString("Warung 256"));
        QCOMPARE(profile->getLogo()->getImageData(), everyByte);
        QCOMPARE(count("images"), 1);
        QCOMPARE(count("data_perusahaan"), 1);
    }

    void aRestaurantWithoutALogoGetsOne()
    {
        run("DELETE FROM images");
        EntityDataPerusahaan* profile = m_company->getData();
        QVERIFY(!profile->getLogo());
        QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
        QCOMPARE(count("images"), 0);

        profile = m_company->getData();
        profile->setLogo(new EntityImage(profile));
        profile->getLogo()->setImageName(BusinessDataPerusahaan::logoName());
        profile->getLogo()->setImageData("picture");
        QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
        QCOMPARE(m_company->getData()->getLogo()->getImageData(), QByteArray("picture"));
    }

    void aLogoThatIsRefusedTakesTheProfileBack()
    {
        run("DELETE FROM images");
        EntityDataPerusahaan* profile = m_company->getData();
        const QString name = profile->getNamaPerusahaan();
        profile->setNamaPerusahaan("Half saved");
        profile->setLogo(new EntityImage(profile));
        QVERIFY(!m_company->updateData(profile));
        QCOMPARE(m_company->errors().keys(), QStringList{"updateData"});
        m_company->clearErrors();
        QCOMPARE(m_company->getData()->getNamaPerusahaan(), name);

        // The same form can be saved when the cause is fixed.
        profile->getLogo()->setImageName(BusinessDataPerusahaan::logoName());
        profile->getLogo()->setImageData("picture");
        QVERIFY2(m_company->updateData(profile), qPrintable(m_company->takeErrors()));
    }

    void aProfileThatIsMissingIsMade()
    {
        run("DELETE FROM data_perusahaan");
        QVERIFY(!m_company->getData() && !m_company->hasError());
        EntityDataPerusahaan profile;
        profile.setNamaPerusahaan("Warung");
        QVERIFY2(m_company->updateData(&profile), qPrintable(m_company->takeErrors()));
        QCOMPARE(m_company->getData()->getNamaPerusahaan(), QString("Warung"));
    }

private:
    BusinessDataPerusahaan* m_company = nullptr;
};

QTEST_MAIN(TestCompanyProfile)
#include "tst_company_profile.moc"
