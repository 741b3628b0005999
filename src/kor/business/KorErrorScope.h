#pragma once

#include <QList>
#include <QString>

class KorBusinessLogic;

/**
 * What one step of a screen makes its services say. The step begins without what an earlier one left behind, and what
 * nobody has taken when the scope ends is forgotten, so that no failure surfaces in some other form later:
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
    /** The failures, each with its line end, or nothing; the services forget them. */
    [[nodiscard]] QString take();

private:
    void clear();

    QList<KorBusinessLogic*> m_services;
};
