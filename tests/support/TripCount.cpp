#include "support/TripCount.h"

#include "kor/persistence/KorDatabase.h"

#include <QLibrary>
#include <QSqlDriver>
#include <QVariant>

namespace
{
constexpr int withoutTimes = 1; // PQTRACE_SUPPRESS_TIMESTAMPS

/** Calls a function of the client library that the driver has loaded; by name, so that tests need no libpq headers. */
template <class... Arguments>
void call(const char* function, Arguments... arguments)
{
    using Function = void (*)(void*, Arguments...);
    const auto address = reinterpret_cast<Function>(QLibrary::resolve("pq", 5, function));
    if (!address)
        qFatal("the client library has no %s", function);
    // The driver's handle is a pointer to the connection's pointer.
    address(*static_cast<void**>(KorDatabase::current().driver()->handle().data()), arguments...);
}
} // namespace

TripCount::TripCount() : m_trace(std::tmpfile())
{
    if (!m_trace)
        qFatal("no room for a trace");
    call("PQtrace", m_trace);
    call("PQsetTraceFlags", withoutTimes);
}

TripCount::~TripCount()
{
    call("PQuntrace");
    std::fclose(m_trace);
}

QStringList TripCount::sent() const
{
    std::fflush(m_trace);
    std::rewind(m_trace);
    QByteArray text;
    char piece[4096];
    for (std::size_t size; (size = std::fread(piece, 1, sizeof piece, m_trace)) > 0;)
        text.append(piece, int(size));
    // "F" marks a message of the client: its length, kind and text follow.
    QStringList messages;
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith("F\t"))
            messages.append(QString::fromUtf8(line.mid(2)));
    }
    return messages;
}
