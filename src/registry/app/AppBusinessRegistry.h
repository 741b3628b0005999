#pragma once

#include "kor/business/KorBusinessRegistry.h"

/** The services of any business program. */
class AppBusinessRegistry final : public KorBusinessRegistry
{
    Q_OBJECT

public:
    static AppBusinessRegistry* instance();

private:
    explicit AppBusinessRegistry(QObject* parent);
};
