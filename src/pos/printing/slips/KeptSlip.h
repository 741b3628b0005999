#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

/** A slip that the workstation keeps. Its bytes are read separately, see SlipArchive::bytes(). */
struct KeptSlip
{
    /**
     * Waiting: being sent. GivenBack: the print server accepted it but did not print it. Unsent: kept and shown,
     * because there is no printer.
     */
    enum State { Waiting, Printed, Failed, GivenBack, Unsent };
    enum Kind { Bill, Kitchen, Recap, Test };

    /** Unique, also across workstations; starts with the day, for example "20261123". */
    QString id;
    QDateTime at;
    /** The logged-in user; empty if there was none. */
    QString user;
    Kind kind = Test;
    QString number;
    QString place;
    /** The job's title in the print queue. */
    QString title;
    QString printer;
    int columns = 0;
    State state = Waiting;
    /** Why it was not printed. */
    QString reason;
    /** Copies are numbered from 1; 0 is the slip itself. */
    int copy = 0;
    /** The id of the slip that this is a copy of. */
    QString copyOf;

    [[nodiscard]] bool isNotPrinted() const { return state == Failed || state == GivenBack; }
};

/** What a slip is about; set by the code that composes it. */
struct SlipPurpose
{
    KeptSlip::Kind kind = KeptSlip::Test;
    /** "TRD11260012", or the number of a take-away order; empty if the document has none. */
    QString number;
    /** The table or the guest. */
    QString place;
    /** The paper's width in characters. */
    int columns = 0;
    /** What is saved although the slip failed, the first line of the error box; empty if nothing was saved. */
    QString standing;
    /** True if no printer was chosen yet: a slip that cannot be sent is then kept and shown without an error box. */
    bool withoutPrinter = false;
};

Q_DECLARE_METATYPE(KeptSlip)
