#pragma once

#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/account/BankTextBox.h"

#include <QLabel>

/** The box of a form in which an account is named, with its name beside it. */
class AccountField final : public RecordField<EntityBank>
{
public:
    AccountField(QLineEdit* code, QLabel* name, KorDialog* form = nullptr)
        : RecordField(new BankTextBox(code, service<BusinessBank>("Bank")), name, form)
    {
        lookUpWhenLeft();
    }
};
