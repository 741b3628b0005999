#pragma once

#include "kor/business/KorFamily.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/item/ItemLineMapper.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"

/** The mappers that every line with an item joins. */
template <>
struct KorPart<ItemPartners> : KorParts<ItemPartners, DataMapperItem, DataMapperJenisItem, DataMapperSatuan>
{};

/** The families of any shop, in the order in which their tables are created. */
[[nodiscard]] QList<KorFamily> posFamilies();
