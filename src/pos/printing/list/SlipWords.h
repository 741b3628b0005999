#pragma once

#include "pos/printing/slips/KeptSlip.h"

#include <QCoreApplication>
#include <QIcon>

/** Texts for the kind and the state of a slip. */
class SlipWords final
{
    Q_DECLARE_TR_FUNCTIONS(SlipWords)

public:
    [[nodiscard]] static QString kind(KeptSlip::Kind kind);
    /** The kind, and the number of the copy if it is one. */
    [[nodiscard]] static QString kind(const KeptSlip& slip);
    [[nodiscard]] static QString state(KeptSlip::State state);
    [[nodiscard]] static QIcon mark(KeptSlip::State state);
    /** The state and, if there is one, the reason. */
    [[nodiscard]] static QString outcome(const KeptSlip& slip);
};
