#include "purchasing/creditnote/BusinessCreditNote.h"

#include "purchasing/creditnote/DataMapperCreditNote.h"

BusinessCreditNote::BusinessCreditNote(QObject* parent, DataMapperCreditNote* notes)
    : KorBusinessLogic("Credit Note", notes, parent), m_notes(notes)
{}

QList<KorPermission> BusinessCreditNote::getPermissions() const
{
    return {{INSERT_CREDIT_NOTE, tr("Insert Credit Note")},
            {UPDATE_CREDIT_NOTE, tr("Update Credit Note")},
            {DELETE_CREDIT_NOTE, tr("Delete Credit Note")},
            {INSERT_CREDIT_NOTE_DETAIL, tr("Insert Credit Note Detail")},
            {UPDATE_CREDIT_NOTE_DETAIL, tr("Update Credit Note Detail")},
            {DELETE_CREDIT_NOTE_DETAIL, tr("Delete Credit Note Detail")}};
}

bool BusinessCreditNote::clearTransactions() { return clearTables({m_notes->lineMapper(), m_notes}); }
