#pragma once

#include <QStringList>

#include <cstdio>

/**
 * Records the messages from the program to the server while it exists. Each message is a round trip: one or more
 * statements in one text, a prepare, a begin, a commit.
 */
class TripCount
{
public:
    TripCount();
    ~TripCount();
    Q_DISABLE_COPY(TripCount)

    /** The messages so far. */
    [[nodiscard]] QStringList sent() const;

private:
    std::FILE* m_trace;
};
