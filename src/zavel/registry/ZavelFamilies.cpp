#include "zavel/registry/ZavelFamilies.h"

#include "app/access/DataMapperUser.h"
#include "app/numbers/DataMapperKey.h"
#include "pos/invoice/DataMapperInvoice.h"
#include "pos/masterdata/account/DataMapperBank.h"
#include "pos/masterdata/agent/DataMapperAgent.h"
#include "pos/masterdata/employee/DataMapperEmployee.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"
#include "pos/registry/PosFamilies.h"
#include "zavel/commission/DataMapperAllAgentCommision.h"
#include "zavel/commission/DataMapperKomisiAgen.h"
#include "zavel/dinein/DataMapperInvoiceMakanDitempat.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/fastfood/DataMapperInvoiceFastFood.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/receivable/DataMapperPiutang.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/BusinessMeja.h"
#include "zavel/tables/DataMapperMeja.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/DataMapperInvoiceBawaPulang.h"

template <>
struct KorPart<DataMapperPenjualanInfo::Partners>
    : KorParts<DataMapperPenjualanInfo::Partners, DataMapperInvoice, DataMapperInvoiceMakanDitempat,
               DataMapperInvoiceFastFood, DataMapperInvoiceBawaPulang, DataMapperMakanDitempat, DataMapperUser,
               DataMapperMember, DataMapperEmployee>
{};

template <>
struct KorPart<BusinessPenjualan::Mappers>
{
    static BusinessPenjualan::Mappers find()
    {
        BusinessPenjualan::Mappers sales;
        sales.dineInvoices = KorPart<DataMapperInvoiceMakanDitempat>::find();
        sales.dineOrders = KorPart<DataMapperMakanDitempat>::find();
        sales.fastFoodInvoices = KorPart<DataMapperInvoiceFastFood>::find();
        sales.takeAwayOrders = KorPart<DataMapperBawaPulang>::find();
        sales.takeAwayInvoices = KorPart<DataMapperInvoiceBawaPulang>::find();
        sales.salesList = KorPart<DataMapperPenjualanInfo>::find();
        sales.receivables = KorPart<DataMapperPiutang>::find();
        sales.commissions = KorPart<DataMapperKomisiAgen>::find();
        sales.agentSales = KorPart<DataMapperAllAgentCommision>::find();
        sales.invoices = KorPart<DataMapperInvoice>::find();
        sales.transactions = {sales.commissions,      sales.receivables, sales.dineInvoices, sales.fastFoodInvoices,
                              sales.takeAwayInvoices, sales.invoices,    sales.dineOrders,   sales.takeAwayOrders};
        return sales;
    }
};

QList<KorFamily> zavelFamilies()
{
    return {
        table<DataMapperMeja>().service<BusinessMeja>(),
        table<DataMapperMakanDitempat, DataMapperMember, DataMapperMeja, ItemPartners>(),
        table<DataMapperInvoiceMakanDitempat, DataMapperInvoice, DataMapperMakanDitempat>()
            .service<BusinessPenjualan, BusinessPenjualan::Mappers>(),
        table<DataMapperInvoiceFastFood, DataMapperInvoice>(),
        table<DataMapperBawaPulang, DataMapperMember, ItemPartners>(),
        table<DataMapperInvoiceBawaPulang, DataMapperInvoice, DataMapperBawaPulang>(),
        table<DataMapperPenjualanInfo, DataMapperPenjualanInfo::Partners>(),
        table<DataMapperPiutang, DataMapperKey, DataMapperMember, DataMapperBank, DataMapperInvoice, DataMapperEmployee,
              DataMapperAgent>(),
        table<DataMapperKomisiAgen, DataMapperKey, DataMapperAgent, DataMapperBank, DataMapperInvoice>(),
        table<DataMapperAllAgentCommision, DataMapperInvoice, DataMapperAgent>(),
    };
}
