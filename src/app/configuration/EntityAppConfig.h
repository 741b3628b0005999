#pragma once

#include "kor/entity/KorEntity.h"

#include <QHash>

/**
 * One setting that all workstations share. The value is a plain text, or a JSON object of texts: those members are
 * kept in memory by name, and subclasses give them accessors.
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

    /** The member's text, empty for one that the row does not have. */
    [[nodiscard]] QString member(const QString& name) const { return m_members.value(name); }
    void setMember(const QString& name, const QString& text) { m_members.insert(name, text); }
    [[nodiscard]] const QHash<QString, QString>& members() const { return m_members; }

    /** Writes the members to Value, in a row that is stored as JSON. */
    void toStored();
    /** Reads the members from Value, in a row that is stored as JSON; a text that is no object gives none. */
    void fromStored();

private:
    QHash<QString, QString> m_members;
};

/** A member of a JSON row under its name in the stored object: getter and setter. */
#define CONFIG_MEMBER(Name, member_name)                                                                               \
public:                                                                                                                \
    [[nodiscard]] QString get##Name() const { return member(QStringLiteral(member_name)); }                            \
    void set##Name(const QString& text) { setMember(QStringLiteral(member_name), text); }
