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
 * Services of a conversion's own, with mappers of their own: the open screens use theirs meanwhile on another thread.
 * Purchases and payments keep the numbers that they bring.
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

/** Children of the owner, and so on its thread. */
[[nodiscard]] ConversionServices makeConversionServices(QObject* owner);
