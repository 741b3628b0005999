#pragma once

#include <QHash>
#include <QList>
#include <QObject>

class KorBusinessLogic;
class KorLogger;

/** The services of one layer by name. Every error that a service notes goes through here into the log. */
class KorBusinessRegistry : public QObject
{
    Q_OBJECT

public:
    KorBusinessRegistry(KorLogger* logger, QObject* parent) : QObject(parent), m_logger(logger) {}
    ~KorBusinessRegistry() override;

    void add(KorBusinessLogic* service);
    [[nodiscard]] KorBusinessLogic* get(const QString& name) const { return m_byName.value(name); }
    /** In the order of their making, so that every installation numbers its permissions alike. */
    [[nodiscard]] const QList<KorBusinessLogic*>& all() const { return m_ordered; }

public slots:
    virtual void onError(const QString& err);

protected:
    template <class Service, class... Arguments>
    Service* make(Arguments... arguments)
    {
        auto* service = new Service(this, arguments...);
        add(service);
        return service;
    }
    template <class Service>
    [[nodiscard]] Service* typed(const QString& name) const
    {
        return qobject_cast<Service*>(get(name));
    }

private:
    KorLogger* m_logger;
    QHash<QString, KorBusinessLogic*> m_byName;
    QList<KorBusinessLogic*> m_ordered;
};
