#pragma once

class BusinessAgent;
class BusinessBank;
class BusinessConfiguration;
class BusinessDataPerusahaan;
class BusinessEmployee;
class BusinessItem;
class BusinessJenisItem;
class BusinessMember;
class BusinessPayment;
class BusinessPurchaseOrder;
class BusinessPurchases;
class BusinessSatuan;
class BusinessSupplier;
class QObject;

/**
 * A separate set of services and mappers for a conversion: open pages use the others at the same time on another
 * thread. Purchases and payments keep the numbers of the former system.
 */
struct ConversionServices
{
    BusinessConfiguration* configuration;
    BusinessDataPerusahaan* company;
    BusinessBank* accounts;
    BusinessJenisItem* itemTypes;
    BusinessSatuan* units;
    BusinessSupplier* suppliers;
    BusinessMember* members;
    BusinessAgent* agents;
    BusinessEmployee* employees;
    BusinessItem* items;
    BusinessPurchaseOrder* orders;
    BusinessPurchases* purchases;
    BusinessPayment* payments;
};

/** The services are children of the owner and so live on its thread. */
[[nodiscard]] ConversionServices makeConversionServices(QObject* owner);
