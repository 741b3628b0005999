#pragma once

#include "kor/business/KorFamily.h"

/** The families of any business program, in the order in which their tables are created. */
[[nodiscard]] QList<KorFamily> appFamilies();
