#include "zavel/dinein/EntityMakanDitempat.h"

void EntityMakanDitempat::moveTo(EntityMeja* table)
{
    if (m_Meja && m_Meja->getKode() != table->getKode())
        m_PindahMeja += (m_PindahMeja.isEmpty() ? "" : ">") + m_Meja->getKode();
    m_Meja = table;
}

QString EntityMakanDitempat::tableTrail() const
{
    const QString code = m_Meja ? m_Meja->getKode() : QString();
    return m_PindahMeja.isEmpty() ? code : m_PindahMeja + '>' + code;
}
