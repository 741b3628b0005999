#pragma once

#include "pos/printing/slips/SlipQueue.h"

#include <QElapsedTimer>

#include <condition_variable>
#include <mutex>

/** One slip on its way through the queue. What is marked so is guarded by the desk. */
class SlipTicket
{
public:
    KeptSlip slip;
    QByteArray bytes;
    bool withoutPrinter = false;
    /** A program that is gone had begun to hand it over: the print server is asked before anything is sent. */
    bool isLeft = false;
    QString reference;

    /** Guarded: the verdict stands. */
    bool isSettled = false;
    /** Guarded. */
    SlipQueue::Verdict verdict;
    /** Guarded: the till has gone on, and hears of a failure later. */
    bool isAbandoned = false;
};

/** Where tickets get their verdicts and the till waits for them. */
struct SlipDesk
{
    std::mutex mutex;
    std::condition_variable news;
};
