#pragma once

#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/account/BankTextBox.h"

#include <QLabel>

/** The field of a form for an account's code, with the account's name. */
class AccountField final : public RecordField<EntityBank>
{
public:
    AccountField(QLineEdit* code, QLabel* name, KorDialog* form = nullptr)
        : RecordField(new BankTextBox(code, service<BusinessBank>("Bank")), name, form)
    {
        lookUpWhenLeft();
    }
};
