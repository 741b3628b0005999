#pragma once

#include "kor/entity/KorEntity.h"

/** A printer model with its control sequences, in the notation of AppLinePrinter::decodeControlSequence. */
class EntityPrinterType : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, PrinterType, QString(""))
    KOR_PROPERTY(QString, CashDrawerCmd, QString(""))
    KOR_PROPERTY(QString, CutPapperCmd, QString(""))

public:
    using KorEntity::KorEntity;
};
