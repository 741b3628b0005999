#include "pos/printing/slips/SlipJournal.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace
{
constexpr auto dayEnding = ".slips";
constexpr auto lockEnding = ".lock";

/** A file descriptor; the destructor closes it, which also releases the lock. */
class Descriptor
{
public:
    Descriptor(const QString& path, int flags)
        : m_fd(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR))
    {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    [[nodiscard]] int fd() const { return m_fd; }
    [[nodiscard]] bool lock() const { return m_fd >= 0 && ::flock(m_fd, LOCK_EX | LOCK_NB) == 0; }
    /** The caller must close the descriptor. */
    int release()
    {
        const int fd = m_fd;
        m_fd = -1;
        return fd;
    }

private:
    int m_fd;
};

QString systemError() { return QString::fromLocal8Bit(std::strerror(errno)); }

QString randomName() { return QString("%1").arg(QRandomGenerator::system()->generate64() >> 16, 12, 16, QChar('0')); }

QJsonObject headOf(const KeptSlip& slip, const QString& owner, int size)
{
    QJsonObject head{
        {"id", slip.id},           {"at", slip.at.toMSecsSinceEpoch()}, {"kind", slip.kind}, {"title", slip.title},
        {"printer", slip.printer}, {"columns", slip.columns},           {"owner", owner},    {"size", size}};
    const auto addText = [&head](const char* name, const QString& text) {
        if (!text.isEmpty())
            head.insert(QLatin1String(name), text);
    };
    addText("user", slip.user);
    addText("number", slip.number);
    addText("place", slip.place);
    addText("copyOf", slip.copyOf);
    if (slip.copy > 0)
        head.insert("copy", slip.copy);
    return head;
}

KeptSlip slipOf(const QJsonObject& head)
{
    KeptSlip slip;
    slip.id = head["id"].toString();
    slip.at = QDateTime::fromMSecsSinceEpoch(qint64(head["at"].toDouble()));
    slip.user = head["user"].toString();
    slip.kind = static_cast<KeptSlip::Kind>(qBound(0, head["kind"].toInt(), int(KeptSlip::Test)));
    slip.number = head["number"].toString();
    slip.place = head["place"].toString();
    slip.title = head["title"].toString();
    slip.printer = head["printer"].toString();
    slip.columns = head["columns"].toInt();
    slip.copy = head["copy"].toInt();
    slip.copyOf = head["copyOf"].toString();
    return slip;
}

QByteArray lineOf(const QJsonObject& object) { return QJsonDocument(object).toJson(QJsonDocument::Compact); }

int base64Length(int size) { return (size + 2) / 3 * 4; }
} // namespace

SlipJournal::~SlipJournal() { releaseOwnLock(); }

bool SlipJournal::fail(const QString& what)
{
    m_error = what;
    return false;
}

bool SlipJournal::open(const QString& folder, SlipArchive::Limits limits)
{
    releaseOwnLock();
    m_folder.setPath(folder);
    m_limits = limits;
    m_readUpTo.clear();
    m_records.clear();
    m_byId.clear();
    m_copies.clear();
    m_inMemory.clear();
    m_isOpen = !folder.isEmpty();
    if (!m_isOpen)
        return true;
    // Only the owner may read what guests ordered.
    if (!m_folder.mkpath(".") ||
        !QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner) || !holdOwnLock()) {
        m_isOpen = false;
        return fail(folder + ": " + systemError());
    }
    refresh();
    return true;
}

bool SlipJournal::holdOwnLock()
{
    m_owner = QString::number(::getpid()) + '-' + randomName();
    // Lock it before it gets its final name, so that a lock file found unlocked always belongs to an ended program.
    const QString unnamed = m_folder.filePath(m_owner + ".new");
    Descriptor lock(unnamed, O_RDWR | O_CREAT);
    if (!lock.lock() || ::rename(QFile::encodeName(unnamed).constData(),
                                 QFile::encodeName(m_folder.filePath(m_owner + lockEnding)).constData()) != 0)
        return false;
    m_ownLock = lock.release();
    return true;
}

void SlipJournal::releaseOwnLock()
{
    if (m_ownLock < 0)
        return;
    ::close(m_ownLock);
    m_ownLock = -1;
}

QString SlipJournal::fileOf(const QString& id) const { return m_folder.filePath(id.left(8) + dayEnding); }

bool SlipJournal::append(const QString& id, const QByteArray& lines, Sync sync)
{
    if (!m_isOpen)
        return fail(m_error);
    const Descriptor file(fileOf(id), O_WRONLY | O_APPEND | O_CREAT);
    if (!file.isOpen())
        return fail(fileOf(id) + ": " + systemError());
    const QByteArray text = '\n' + lines + '\n';
    errno = ENOSPC;
    // One byte less is enough: only the final line break is missing, and the next line starts with one.
    if (::write(file.fd(), text.constData(), size_t(text.size())) < text.size() - 1 ||
        (sync == SyncToDisk && ::fdatasync(file.fd()) != 0))
        return fail(fileOf(id) + ": " + systemError());
    return true;
}

void SlipJournal::refresh()
{
    if (!m_isOpen)
        return;
    const QStringList names = m_folder.entryList({QString("*") + dayEnding}, QDir::Files, QDir::Name);
    for (const QString& name : names)
        readFile(name);
}

void SlipJournal::readFile(const QString& name)
{
    qint64& readUpTo = m_readUpTo[name];
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly) || file.size() <= readUpTo || !file.seek(readUpTo))
        return;
    const QByteArray text = file.readAll();
    const int end = text.lastIndexOf('\n') + 1;
    for (int begin = 0; begin < end;) {
        const int stop = text.indexOf('\n', begin);
        if (stop > begin)
            readLine(text.constData() + begin, stop - begin, readUpTo + begin);
        begin = stop + 1;
    }
    readUpTo += end;
}

void SlipJournal::readLine(const char* line, int length, qint64 offset)
{
    const auto* tab = static_cast<const char*>(std::memchr(line, '\t', size_t(length)));
    const int headLength = tab ? int(tab - line) : length;
    const QJsonObject head = QJsonDocument::fromJson(QByteArray::fromRawData(line, headLength)).object();
    const QString id = head["id"].toString();
    if (tab) {
        Record record;
        record.slip = slipOf(head);
        record.owner = head["owner"].toString();
        record.offset = offset + headLength + 1;
        record.length = length - headLength - 1;
        // After a power cut the middle of a line may be zeros.
        const bool isWhole = record.length == base64Length(head["size"].toInt()) &&
                             !std::memchr(line, '\0', size_t(length)) && record.slip.at.isValid();
        if (!id.isEmpty() && isWhole)
            put(record);
        return;
    }
    const auto found = m_byId.constFind(id);
    if (found == m_byId.constEnd())
        return;
    Record& record = m_records[*found];
    if (head.contains("state")) {
        record.slip.state = static_cast<KeptSlip::State>(qBound(0, head["state"].toInt(), int(KeptSlip::Unsent)));
        record.slip.reason = head["reason"].toString();
    }
    if (head.contains("owner"))
        record.owner = head["owner"].toString();
    if (head.contains("begun")) {
        record.begun = head["begun"].toBool();
        record.reference = head["reference"].toString();
    }
}

void SlipJournal::put(const Record& record)
{
    if (m_byId.contains(record.slip.id))
        return;
    m_byId.insert(record.slip.id, m_records.size());
    m_records.append(record);
    if (!record.slip.copyOf.isEmpty())
        m_copies[record.slip.copyOf] = qMax(m_copies.value(record.slip.copyOf), record.slip.copy);
}

QList<KeptSlip> SlipJournal::slips(const QDate& from, const QDate& to) const
{
    QList<KeptSlip> found;
    for (int i = qMax(0, m_records.size() - m_limits.slips); i < m_records.size(); ++i) {
        const KeptSlip& slip = m_records[i].slip;
        const QDate day = slip.at.date();
        if (day >= from && day <= to)
            found.prepend(slip);
    }
    std::stable_sort(found.begin(), found.end(), [](const KeptSlip& a, const KeptSlip& b) { return a.at > b.at; });
    return found;
}

KeptSlip SlipJournal::slip(const QString& id) const
{
    const auto found = m_byId.constFind(id);
    return found == m_byId.constEnd() ? KeptSlip() : m_records[*found].slip;
}

QByteArray SlipJournal::bytes(const QString& id) const
{
    const auto found = m_byId.constFind(id);
    if (found == m_byId.constEnd())
        return {};
    const Record& record = m_records[*found];
    if (record.length < 0)
        return record.bytes;
    QFile file(fileOf(id));
    if (!file.open(QIODevice::ReadOnly) || !file.seek(record.offset))
        return {};
    return QByteArray::fromBase64(file.read(record.length));
}

int SlipJournal::copies(const QString& id) const { return m_copies.value(id); }

bool SlipJournal::add(QList<SlipArchive::Entry>& entries)
{
    bool kept = true;
    for (int i = 0; i < entries.size(); ++i) {
        KeptSlip& slip = entries[i].slip;
        slip.at = QDateTime::currentDateTime();
        slip.id = slip.at.toString("yyyyMMdd-hhmmsszzz-") + randomName();
        const QByteArray& bytes = entries[i].bytes;
        const QByteArray line = lineOf(headOf(slip, m_owner, bytes.size())) + '\t' + bytes.toBase64();
        const Sync sync = i + 1 == entries.size() ? SyncToDisk : NoSync;
        if (append(slip.id, line, sync)) {
            readFile(QFileInfo(fileOf(slip.id)).fileName());
            continue;
        }
        kept = false;
        keepInMemory(entries[i]);
    }
    return kept;
}

void SlipJournal::keepInMemory(const SlipArchive::Entry& entry)
{
    Record record;
    record.slip = entry.slip;
    record.owner = m_owner;
    record.bytes = entry.bytes;
    put(record);
    constexpr int most = 500;
    m_inMemory.append(entry.slip.id);
    if (m_inMemory.size() > most)
        m_records[m_byId.value(m_inMemory.takeFirst())].bytes.clear();
}

bool SlipJournal::appendState(const QString& id, const QJsonObject& change, Sync sync)
{
    QJsonObject line = change;
    line.insert("id", id);
    const auto found = m_byId.constFind(id);
    if (found != m_byId.constEnd() && m_records[*found].length >= 0 && append(id, lineOf(line), sync)) {
        readFile(QFileInfo(fileOf(id)).fileName());
        return true;
    }
    const QByteArray text = lineOf(line);
    readLine(text.constData(), text.size(), 0);
    return false;
}

bool SlipJournal::begin(const QString& id, const QString& reference)
{
    return appendState(id, {{"begun", true}, {"reference", reference}}, SyncToDisk);
}

bool SlipJournal::settle(const QString& id, KeptSlip::State state, const QString& reason)
{
    QJsonObject change{{"state", state}};
    if (!reason.isEmpty())
        change.insert("reason", reason);
    return appendState(id, change, NoSync);
}

void SlipJournal::prune()
{
    if (!m_isOpen)
        return;
    refresh();
    const QString oldest = QDate::currentDate().addDays(-m_limits.days).toString("yyyyMMdd");
    QHash<QString, int> perDay;
    for (const Record& record : qAsConst(m_records))
        ++perDay[record.slip.id.left(8)];
    int newer = 0;
    QStringList gone;
    const QStringList names = m_readUpTo.keys();
    for (auto name = names.crbegin(); name != names.crend(); ++name) {
        const QString day = name->left(8);
        if ((day < oldest || newer >= m_limits.slips) && QFile::remove(m_folder.filePath(*name)))
            gone.append(day);
        newer += perDay.value(day);
    }
    if (gone.isEmpty())
        return;
    const QVector<Record> before = m_records;
    m_records.clear();
    m_byId.clear();
    m_copies.clear();
    for (const Record& record : before) {
        if (!gone.contains(record.slip.id.left(8)) || record.length < 0)
            put(record);
    }
    for (const QString& day : qAsConst(gone))
        m_readUpTo.remove(day + dayEnding);
}

bool SlipJournal::isGone(const QString& owner) const
{
    if (owner == m_owner)
        return false;
    const QString path = m_folder.filePath(owner + lockEnding);
    const Descriptor lock(path, O_RDWR);
    return lock.isOpen() ? lock.lock() : errno == ENOENT;
}

QList<SlipArchive::Orphan> SlipJournal::adopt()
{
    QList<SlipArchive::Orphan> orphans;
    if (!m_isOpen)
        return orphans;
    // Only one program at a time, so that no two take the same slip.
    const Descriptor alone(m_folder.filePath("adopting"), O_RDWR | O_CREAT);
    if (!alone.lock())
        return orphans;
    refresh();
    QHash<QString, bool> gone;
    const auto isOrphan = [&](const Record& record) {
        if (record.slip.state != KeptSlip::Waiting || record.length < 0 || record.owner == m_owner)
            return false;
        if (!gone.contains(record.owner))
            gone.insert(record.owner, isGone(record.owner));
        return gone.value(record.owner);
    };
    for (int i = 0; i < m_records.size(); ++i) {
        if (!isOrphan(m_records[i]))
            continue;
        const KeptSlip slip = m_records[i].slip;
        // If this cannot be written, the next start finds the slip unchanged.
        if (append(slip.id, lineOf({{"id", slip.id}, {"owner", m_owner}}), SyncToDisk)) {
            readFile(QFileInfo(fileOf(slip.id)).fileName());
            orphans.append({slip, bytes(slip.id), m_records[i].begun, m_records[i].reference});
        }
    }
    const QStringList locks = m_folder.entryList({QString("*") + lockEnding}, QDir::Files);
    for (const QString& lock : locks) {
        if (isGone(lock.chopped(int(std::strlen(lockEnding)))))
            QFile::remove(m_folder.filePath(lock));
    }
    return orphans;
}
