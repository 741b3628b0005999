#pragma once

#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/contact/EntityContact.h"

/** A contact that gets paid: its ledger account and its bank account. */
class EntityPayee : public EntityContact
{
    Q_OBJECT
    KOR_REFERENCE(EntityBank, Bank)
    KOR_PROPERTY(QString, NoRek, QString())
    KOR_PROPERTY(QString, NoRekAtasNama, QString())
    KOR_PROPERTY(QString, Notes, QString())

public:
    using EntityContact::EntityContact;
};
