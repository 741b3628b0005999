#pragma once

#include "kor/business/KorFamily.h"

/** The families of the restaurant, in the order in which their tables are created. */
[[nodiscard]] QList<KorFamily> zavelFamilies();
