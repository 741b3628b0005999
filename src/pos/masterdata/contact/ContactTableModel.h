#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of a list of contacts. */
class ContactTableModel : public KorEntityModel
{
    Q_OBJECT

public:
    ContactTableModel(const QList<KorEntity*>& contacts, QObject* parent);
};
