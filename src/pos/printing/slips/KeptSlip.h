#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

/** One slip as the workstation keeps it; the bytes stand apart, see SlipArchive::bytes. */
struct KeptSlip
{
    /**
     * Waiting slips are on their way. GivenBack: the print server took it and did not print it. Unsent: kept and shown,
     * there is no printer.
     */
    enum State { Waiting, Printed, Failed, GivenBack, Unsent };
    enum Kind { Bill, Kitchen, Recap, Test };

    /** Unlike any other's, on other workstations too; it begins with the day, as "20261123". */
    QString id;
    QDateTime at;
    /** Who was logged in; empty where nobody was. */
    QString user;
    Kind kind = Test;
    QString number;
    QString place;
    /** The job's title in the print queue. */
    QString title;
    QString printer;
    int columns = 0;
    State state = Waiting;
    /** Why it is not printed. */
    QString reason;
    /** The first copy of a slip is 1; 0 is the slip itself. */
    int copy = 0;
    /** The id of the slip that this is a copy of. */
    QString copyOf;

    [[nodiscard]] bool isNotPrinted() const { return state == Failed || state == GivenBack; }
};

/** What a slip is about, as whoever composes it knows. */
struct SlipPurpose
{
    KeptSlip::Kind kind = KeptSlip::Test;
    /** "TRD11260012", or the number of a take-away order; empty where people use none. */
    QString number;
    /** The table or the guest. */
    QString place;
    /** The paper's width in characters. */
    int columns = 0;
    /** What stands although the slip failed, said first in its box; empty where nothing was saved. */
    QString standing;
    /** Nobody has chosen a printer yet: a slip that no printer takes is kept and shown, without a box. */
    bool withoutPrinter = false;
};

Q_DECLARE_METATYPE(KeptSlip)
