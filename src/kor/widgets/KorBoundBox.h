#pragma once

#include <QMetaProperty>

class KorEntity;

/**
 * A box of a form and the field of the record that it edits. The box's value is its user property; of a list it is the
 * data of the chosen entry, of a label its text. Labels and boxes that nobody can write in show only.
 *
 * The box is borrowed. A field or a value that does not exist, and two that do not go into each other, end the program:
 * a form that opens has all of its boxes.
 */
class KorBoundBox
{
public:
    KorBoundBox(QObject* box, const QMetaObject& record, const char* field);

    /** A list that has no entry for the field has none chosen. */
    void show(const KorEntity& record) const;
    /** A list with no entry chosen leaves the field as it is. */
    void take(KorEntity* record) const;

private:
    QObject* m_box;
    QMetaProperty m_value;
    QMetaProperty m_field;
    bool m_showsOnly;
};
