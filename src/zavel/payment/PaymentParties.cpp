#include "zavel/payment/PaymentParties.h"

#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "pos/masterdata/member/MemberTextBox.h"

PaymentParties::PaymentParties(const Boxes& boxes, KorDialog* form)
    : QObject(form), m_account(new AccountField(boxes.cashAccount, boxes.cashAccountName, form))
{
    auto* members = new MemberTextBox(boxes.member, service<BusinessMember>("Member"));
    m_member = new RecordField<EntityMember>(members, nullptr, form);
    if (!boxes.agent || !boxes.employee)
        return;
    auto* agents = new AgentTextBox(boxes.agent, service<BusinessAgent>("Agent"));
    auto* employees = new EmployeeTextBox(boxes.employee, service<BusinessEmployee>("Employee"));
    m_agent = new RecordField<EntityAgent>(agents, nullptr, form);
    m_employee = new RecordField<EntityEmployee>(employees, nullptr, form);
    members->setNextWidget(boxes.agent);
    agents->setNextWidget(boxes.employee);
}

void PaymentParties::lookUp()
{
    m_account->check(tr("Please select a Cash Accounts"), tr("Please select a valid Cash Accounts"));
    bool couldAsk = m_account->couldAsk();
    // A typed code counts like one picked from the list; an unknown one must cause an error.
    const QList<RecordFieldBase*> people{m_member, m_agent, m_employee};
    for (RecordFieldBase* field : people) {
        // A database error is reported once, not once per box.
        if (!field || !couldAsk)
            continue;
        field->check({}, tr("There is no record with the code: %1").arg(field->box()->editor()->text()));
        couldAsk = field->couldAsk();
    }
}

EntityMember* PaymentParties::member() const { return m_member->record(); }

EntityAgent* PaymentParties::agent() const { return m_agent ? m_agent->record() : nullptr; }

EntityEmployee* PaymentParties::employee() const { return m_employee ? m_employee->record() : nullptr; }

void PaymentParties::showMember(EntityMember* member) { m_member->show(member); }

void PaymentParties::showAgent(EntityAgent* agent) { m_agent->show(agent); }

void PaymentParties::showEmployee(EntityEmployee* employee) { m_employee->show(employee); }

EntityBank* PaymentParties::cashAccount() const { return m_account->record(); }

void PaymentParties::showDefaultAccount() { m_account->showCode(BusinessBank::cashOnHandCode()); }

void PaymentParties::showAccount(const QString& code) { m_account->showCode(code); }
