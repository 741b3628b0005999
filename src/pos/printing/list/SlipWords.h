#pragma once

#include "pos/printing/slips/KeptSlip.h"

#include <QCoreApplication>
#include <QIcon>

/** What a slip is, and what has become of it, in words for a person. */
class SlipWords final
{
    Q_DECLARE_TR_FUNCTIONS(SlipWords)

public:
    [[nodiscard]] static QString kind(KeptSlip::Kind kind);
    /** The kind, and which copy it is where it is one. */
    [[nodiscard]] static QString kind(const KeptSlip& slip);
    [[nodiscard]] static QString state(KeptSlip::State state);
    [[nodiscard]] static QIcon mark(KeptSlip::State state);
    /** The state and, where there is one, its reason. */
    [[nodiscard]] static QString outcome(const KeptSlip& slip);
};
