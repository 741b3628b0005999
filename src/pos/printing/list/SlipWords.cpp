#include "pos/printing/list/SlipWords.h"

#include "app/widgets/StatusMark.h"

QString SlipWords::kind(KeptSlip::Kind kind)
{
    switch (kind) {
    case KeptSlip::Bill:
        return tr("Bill");
    case KeptSlip::Kitchen:
        return tr("Kitchen");
    case KeptSlip::Recap:
        return tr("Order recap");
    case KeptSlip::Test:
        return tr("Test");
    }
    return {};
}

QString SlipWords::kind(const KeptSlip& slip)
{
    return slip.copy > 0 ? tr("%1, copy %2").arg(kind(slip.kind)).arg(slip.copy) : kind(slip.kind);
}

QString SlipWords::state(KeptSlip::State state)
{
    switch (state) {
    case KeptSlip::Waiting:
        return tr("Waiting");
    case KeptSlip::Printed:
        return tr("Printed");
    case KeptSlip::Failed:
        return tr("Failed");
    case KeptSlip::GivenBack:
        return tr("Given back");
    case KeptSlip::Unsent:
        return tr("No printer");
    }
    return {};
}

QIcon SlipWords::mark(KeptSlip::State state)
{
    switch (state) {
    case KeptSlip::Waiting:
        return statusMark("waiting");
    case KeptSlip::Printed:
        return statusMark("done");
    case KeptSlip::Failed:
    case KeptSlip::GivenBack:
        return statusMark("unpaid");
    case KeptSlip::Unsent:
        return statusMark("empty");
    }
    return {};
}

QString SlipWords::outcome(const KeptSlip& slip)
{
    return slip.reason.isEmpty() ? state(slip.state) : state(slip.state) + ": " + slip.reason;
}
