#include "pos/printing/slips/SlipArchive.h"

#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "pos/printing/slips/SlipJournal.h"

#include <QMutexLocker>
#include <QSettings>

SlipArchive* SlipArchive::instance()
{
    static auto* const archive = new SlipArchive;
    return archive;
}

SlipArchive::SlipArchive() : m_journal(std::make_unique<SlipJournal>()) { qRegisterMetaType<KeptSlip>(); }

SlipArchive::~SlipArchive() = default;

SlipArchive::Limits SlipArchive::limitsFrom(const QString& settingsPath)
{
    const QSettings settings(settingsPath, QSettings::IniFormat);
    Limits limits;
    const auto positive = [&settings](const char* key, int usual) {
        const int value = settings.value(QLatin1String(key), usual).toInt();
        return value > 0 ? value : usual;
    };
    limits.days = positive("slipdays", limits.days);
    limits.slips = positive("slipcount", limits.slips);
    return limits;
}

void SlipArchive::setFolder(const QString& path, Limits limits)
{
    {
        const QMutexLocker guard(&m_mutex);
        if (m_journal->open(path, limits))
            m_journal->prune();
        note(m_journal->error().isEmpty());
    }
    tellChange();
}

QList<KeptSlip> SlipArchive::slips(const QDate& from, const QDate& to) const
{
    const QMutexLocker guard(&m_mutex);
    m_journal->refresh();
    return m_journal->slips(from, to);
}

KeptSlip SlipArchive::slip(const QString& id) const
{
    const QMutexLocker guard(&m_mutex);
    return m_journal->slip(id);
}

QByteArray SlipArchive::bytes(const QString& id) const
{
    const QMutexLocker guard(&m_mutex);
    return m_journal->bytes(id);
}

int SlipArchive::copies(const QString& id) const
{
    const QMutexLocker guard(&m_mutex);
    m_journal->refresh();
    return m_journal->copies(id);
}

void SlipArchive::add(QList<Entry>& entries)
{
    {
        const QMutexLocker guard(&m_mutex);
        note(m_journal->add(entries));
    }
    tellChange();
}

bool SlipArchive::begin(const QString& id, const QString& reference)
{
    const QMutexLocker guard(&m_mutex);
    return m_journal->begin(id, reference);
}

void SlipArchive::settle(const QString& id, KeptSlip::State state, const QString& reason)
{
    {
        const QMutexLocker guard(&m_mutex);
        m_journal->settle(id, state, reason);
    }
    tellChange();
}

void SlipArchive::prune()
{
    const QMutexLocker guard(&m_mutex);
    m_journal->prune();
}

QList<SlipArchive::Orphan> SlipArchive::adopt()
{
    const QMutexLocker guard(&m_mutex);
    return m_journal->adopt();
}

void SlipArchive::tellChange()
{
    // Several changes at once give one signal.
    if (m_changeIsDue.exchange(true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_changeIsDue = false;
            emit changed();
        },
        Qt::QueuedConnection);
}

void SlipArchive::note(bool works)
{
    const bool isNew = !works && !m_isInTrouble;
    m_isInTrouble = !works;
    if (!isNew)
        return;
    const QString reason = m_journal->error();
    QMetaObject::invokeMethod(
        this,
        [this, reason] {
            AppContext::log("slips cannot be kept: " + reason);
            emit trouble(reason);
        },
        Qt::QueuedConnection);
}
