#pragma once

#include "kor/business/KorBusinessRegistry.h"

/** The services of any shop. */
class PosBusinessRegistry final : public KorBusinessRegistry
{
    Q_OBJECT

public:
    static PosBusinessRegistry* instance();

private:
    explicit PosBusinessRegistry(QObject* parent);
};
