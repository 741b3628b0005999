#pragma once

#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/item/ItemTextBox.h"

/** The field of a form for the code of an item of any class. */
class ItemField final : public RecordField<EntityItem>
{
public:
    ItemField(QLineEdit* code, QLineEdit* name, KorDialog* form)
        : RecordField(new ItemTextBox(code, service<BusinessItem>("Item")), name, form)
    {
        lookUpWhenLeft();
    }
};
