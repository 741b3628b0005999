#pragma once

#include "kor/business/KorBusinessLogic.h"
#include "pos/printing/configuration/EntityConfigCashierPrinter.h"
#include "pos/printing/configuration/EntityConfigKitchenPrinter.h"

class BusinessConfiguration;

/** The service of the settings of the cashier's and the kitchens' printers. */
class BusinessPrinterConfig final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { MANAGE_PRINTER_CONFIG };
    Q_ENUM(PERMISSIONS)

    BusinessPrinterConfig(QObject* parent, BusinessConfiguration* configuration);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /** Null if the installer has not inserted the row; nothing else does. */
    [[nodiscard]] EntityConfigCashierPrinter* getCashierPrinterConfig();
    [[nodiscard]] EntityConfigKitchenPrinter* getConfig(const QString& key);
    /** In the order in which they were added. */
    [[nodiscard]] QList<EntityConfigKitchenPrinter*> getAllKitchenPrinterConfig();

private:
    template <class Result>
    Result taken(Result result, const QString& operation);

    BusinessConfiguration* m_configuration;
};
