#pragma once

#include <QStringList>

#include <cstdio>

/**
 * Listens to what goes over the wire of the program's connection while it lives. Each message to the server is a trip:
 * a statement or several in one text, a preparation, a begin, a commit.
 */
class TripCount
{
public:
    TripCount();
    ~TripCount();
    Q_DISABLE_COPY(TripCount)

    /** What was sent so far, one text a trip. */
    [[nodiscard]] QStringList sent() const;

private:
    std::FILE* m_trace;
};
