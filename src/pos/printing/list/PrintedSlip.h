#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/printing/slips/KeptSlip.h"

/** A kept slip as a row of a list. It has no table and is never saved. */
class PrintedSlip final : public KorEntity
{
    Q_OBJECT

public:
    explicit PrintedSlip(KeptSlip slip, QObject* parent = nullptr) : KorEntity(parent), m_slip(std::move(slip)) {}

    [[nodiscard]] const KeptSlip& slip() const { return m_slip; }

private:
    KeptSlip m_slip;
};
