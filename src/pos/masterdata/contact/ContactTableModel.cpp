#include "pos/masterdata/contact/ContactTableModel.h"

#include "pos/masterdata/contact/EntityContact.h"

ContactTableModel::ContactTableModel(const QList<KorEntity*>& contacts, QObject* parent)
    : KorEntityModel(contacts, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityContact::getKode);
    addText(tr("Name"), &EntityContact::getNama);
    addText(tr("Phone"), &EntityContact::getTelp);
    addText(tr("Email"), &EntityContact::getEmail);
}
