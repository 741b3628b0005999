#pragma once

#include "kor/business/KorBusinessRegistry.h"

/** The services of this restaurant. */
class ZavelBusinessRegistry final : public KorBusinessRegistry
{
    Q_OBJECT

public:
    static ZavelBusinessRegistry* instance();

private:
    explicit ZavelBusinessRegistry(QObject* parent);
};
