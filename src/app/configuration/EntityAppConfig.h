#pragma once

#include "kor/entity/KorEntity.h"

#include <QHash>

/**
 * One setting that all workstations share. The value is plain text or a JSON object of strings. The members of a JSON
 * object are kept in memory by name; subclasses add typed accessors.
 */
class EntityAppConfig : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Key, QString(""))
    KOR_PROPERTY(bool, IsStoredAsJSON, false)
    KOR_PROPERTY(QString, Value, QString(""))
    KOR_PROPERTY(QString, Description, QString())

public:
    using KorEntity::KorEntity;

    /** The text of the member; empty if the row does not have it. */
    [[nodiscard]] QString member(const QString& name) const { return m_members.value(name); }
    void setMember(const QString& name, const QString& text) { m_members.insert(name, text); }
    [[nodiscard]] const QHash<QString, QString>& members() const { return m_members; }

    /** Writes the members to Value as JSON; does nothing for a plain text row. */
    void toStored();
    /**
     * Reads the members from Value; does nothing for a plain text row. A value that is no JSON object gives no members.
     */
    void fromStored();

private:
    QHash<QString, QString> m_members;
};

/** Getter and setter of a JSON member; member_name is its name in the stored object. */
#define CONFIG_MEMBER(Name, member_name)                                                                               \
public:                                                                                                                \
    [[nodiscard]] QString get##Name() const { return member(QStringLiteral(member_name)); }                            \
    void set##Name(const QString& text) { setMember(QStringLiteral(member_name), text); }
