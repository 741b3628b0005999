#pragma once

#include <QHash>
#include <QList>
#include <QObject>

class KorDataMapper;

/** The mappers of one layer, by name and in the order of their making, which is the order of creating tables. */
class KorMapperRegistry : public QObject
{
    Q_OBJECT

public:
    explicit KorMapperRegistry(QObject* parent) : QObject(parent) {}

    void add(KorDataMapper* mapper);
    [[nodiscard]] KorDataMapper* get(const QString& name) const { return m_byName.value(name); }
    [[nodiscard]] const QList<KorDataMapper*>& all() const { return m_ordered; }

protected:
    /** Makes a mapper, owned by the registry, and adds it. */
    template <class Mapper, class... Arguments>
    Mapper* make(Arguments... arguments)
    {
        auto* mapper = new Mapper(this, arguments...);
        add(mapper);
        return mapper;
    }
    template <class Mapper>
    [[nodiscard]] Mapper* typed(const QString& name) const
    {
        return qobject_cast<Mapper*>(get(name));
    }

private:
    QHash<QString, KorDataMapper*> m_byName;
    QList<KorDataMapper*> m_ordered;
};
