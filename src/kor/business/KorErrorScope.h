#pragma once

#include <QList>
#include <QString>

class KorBusinessLogic;

/**
 * Limits the errors of a step to that step: the constructor drops what an earlier step left in the services, the
 * destructor what nobody took. So no error shows up later in another form:
 *
 *     KorErrorScope errors(tables);
 *     const auto rows = tables->findAll(text);
 *     if (KorErrorBox::tell(this, errors.take()))
 *         return;
 */
class KorErrorScope
{
public:
    explicit KorErrorScope(KorBusinessLogic* service) : KorErrorScope({service}) {}
    KorErrorScope(std::initializer_list<KorBusinessLogic*> services);
    ~KorErrorScope();
    Q_DISABLE_COPY(KorErrorScope)

    [[nodiscard]] bool failed() const;
    /** The errors, each ending with a line break; empty if there are none. The services drop them. */
    [[nodiscard]] QString take();

private:
    void clear();

    QList<KorBusinessLogic*> m_services;
};
