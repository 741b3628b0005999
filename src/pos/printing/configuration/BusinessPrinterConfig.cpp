#include "pos/printing/configuration/BusinessPrinterConfig.h"

#include "app/configuration/BusinessConfiguration.h"

BusinessPrinterConfig::BusinessPrinterConfig(QObject* parent, BusinessConfiguration* configuration)
    : KorBusinessLogic("Printer Config", configuration->mapper(), parent), m_configuration(configuration)
{
    m_configuration->addType<EntityConfigCashierPrinter>(EntityConfigCashierPrinter::rowKey());
    m_configuration->addType<EntityConfigKitchenPrinter>(EntityConfigKitchenPrinter::keyPrefix());
}

QList<KorPermission> BusinessPrinterConfig::getPermissions() const
{
    return {{MANAGE_PRINTER_CONFIG, tr("Manage Printer Configurations")}};
}

EntityConfigCashierPrinter* BusinessPrinterConfig::getCashierPrinterConfig()
{
    const QString key = EntityConfigCashierPrinter::rowKey();
    return taken(m_configuration->getConfig<EntityConfigCashierPrinter>(key), "getCashierPrinterConfig");
}

EntityConfigKitchenPrinter* BusinessPrinterConfig::getConfig(const QString& key)
{
    return taken(m_configuration->getConfig<EntityConfigKitchenPrinter>(key), "getConfig");
}

QList<EntityConfigKitchenPrinter*> BusinessPrinterConfig::getAllKitchenPrinterConfig()
{
    QList<EntityConfigKitchenPrinter*> kitchens;
    const QList<EntityAppConfig*> rows = m_configuration->getConfigsLike('%' + EntityConfigKitchenPrinter::keyPrefix());
    for (EntityAppConfig* row : rows) {
        if (auto* kitchen = qobject_cast<EntityConfigKitchenPrinter*>(row))
            kitchens.append(kitchen);
    }
    return taken(kitchens, "getAllKitchenPrinterConfig");
}

/** Copies the errors of the configuration service to this service, where its callers look for them. */
template <class Result>
Result BusinessPrinterConfig::taken(Result result, const QString& operation)
{
    if (m_configuration->hasError())
        addError(operation, m_configuration->takeErrors().trimmed());
    return result;
}
