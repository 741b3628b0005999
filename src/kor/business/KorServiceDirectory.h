#pragma once

#include "kor/business/KorBusinessLogic.h"

/**
 * Finds services by name. The registries fill it, so that pages need not know which registry or layer owns a service.
 * The services are borrowed.
 */
class KorServiceDirectory
{
public:
    static void add(KorBusinessLogic* service);
    static void remove(KorBusinessLogic* service);
    /** Null for an unknown name. */
    [[nodiscard]] static KorBusinessLogic* get(const QString& name);
    /** The service of exactly this class; null if there is none. */
    [[nodiscard]] static KorBusinessLogic* find(const QMetaObject& type);
};

/** The service of this name, cast to its type; null if it is missing or of another type. */
template <class Service>
[[nodiscard]] Service* service(const QString& name)
{
    return qobject_cast<Service*>(KorServiceDirectory::get(name));
}
