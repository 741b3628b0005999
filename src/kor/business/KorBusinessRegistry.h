#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

class KorBusinessLogic;
class KorLogger;
struct KorFamily;

/** The services of one layer by name. It writes every error that a service records to the log. */
class KorBusinessRegistry : public QObject
{
    Q_OBJECT

public:
    /** Creates the services of the families in their order. In all(), the services named in "first" come first. */
    KorBusinessRegistry(const QList<KorFamily>& families, const QStringList& first, KorLogger* logger, QObject* parent);
    ~KorBusinessRegistry() override;

    void add(KorBusinessLogic* service);
    [[nodiscard]] KorBusinessLogic* get(const QString& name) const { return m_byName.value(name); }
    /** Always in the same order, so that every installation numbers its permissions the same way. */
    [[nodiscard]] const QList<KorBusinessLogic*>& all() const { return m_ordered; }

public slots:
    virtual void onError(const QString& err);

protected:
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
