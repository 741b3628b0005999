#include "tour/BackOfficeTour.h"
#include "tour/DineInTour.h"
#include "tour/Guide.h"
#include "tour/LanguageTour.h"
#include "tour/OwnerTour.h"
#include "tour/SellingTour.h"
#include "tour/StartTour.h"

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QThread>
#include <QTimer>

/**
 * Qt loads it into the unmodified program ("-plugin zaveltour:NAME"), so that the tour drives exactly the program that
 * restaurants use. ZAVEL_TOUR_DIR is the folder for pictures.
 */
class TourPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "tour.json")

public:
    QObject* create(const QString& key, const QString& tourName) override
    {
        Q_UNUSED(key)
        const QString name = tourName;
        auto* holder = new QObject;
        QTimer::singleShot(0, holder, [holder, name] {
            QThread* thread = QThread::create([name] { play(name); });
            thread->setParent(holder);
            thread->start();
        });
        return holder;
    }

private:
    static void play(const QString& name)
    {
        Guide guide(qEnvironmentVariable("ZAVEL_TOUR_DIR"));
        if (name == "dine-in")
            playDineIn(guide);
        else if (name == "back-office")
            playBackOffice(guide);
        else if (name == "selling")
            playSelling(guide);
        else if (name == "owner")
            playOwner(guide);
        else if (name == "indonesian")
            playLanguage(guide);
        else if (name == "start")
            playStart(guide);
        else
            guide.fail("there is no tour named " + name);
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    }
};

#include "TourPlugin.moc"
