#pragma once

#include "pos/printing/slips/SlipQueue.h"

#include <QElapsedTimer>

#include <condition_variable>
#include <mutex>

/** One slip in the queue. Members marked "Guarded" need the desk's mutex. */
class SlipTicket
{
public:
    KeptSlip slip;
    QByteArray bytes;
    bool withoutPrinter = false;
    /** An ended program had started to send it: ask the print server first. */
    bool isLeft = false;
    QString reference;

    /** Guarded: the verdict is known. */
    bool isSettled = false;
    /** Guarded. */
    SlipQueue::Verdict verdict;
    /** Guarded: the till has continued, and a failure is reported later. */
    bool isAbandoned = false;
};

/** The mutex and condition for the verdicts of tickets. */
struct SlipDesk
{
    std::mutex mutex;
    std::condition_variable news;
};
