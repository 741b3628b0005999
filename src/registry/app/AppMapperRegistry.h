#pragma once

#include "kor/business/KorMapperRegistry.h"

/** The mappers of any business program, in the order in which their tables are created. */
class AppMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static AppMapperRegistry* instance();

private:
    explicit AppMapperRegistry(QObject* parent);
};
