#pragma once

#include <QHash>
#include <QList>
#include <QObject>

class KorDataMapper;
struct KorFamily;

/** The mappers of one layer, by name and in order of creation, which is also the order of creating tables. */
class KorMapperRegistry : public QObject
{
    Q_OBJECT

public:
    /** Creates the mappers of the families in their order. */
    KorMapperRegistry(const QList<KorFamily>& families, QObject* parent);
    ~KorMapperRegistry() override;

    /** The mapper of exactly this class in any layer; null if there is none. */
    [[nodiscard]] static KorDataMapper* find(const QMetaObject& type);
    void add(KorDataMapper* mapper);
    [[nodiscard]] KorDataMapper* get(const QString& name) const { return m_byName.value(name); }
    [[nodiscard]] const QList<KorDataMapper*>& all() const { return m_ordered; }

protected:
    template <class Mapper>
    [[nodiscard]] Mapper* typed(const QString& name) const
    {
        return qobject_cast<Mapper*>(get(name));
    }

private:
    QHash<QString, KorDataMapper*> m_byName;
    QList<KorDataMapper*> m_ordered;
};
