#include "zavel/payment/PaymentParties.h"

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/masterdata/account/AccountField.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "pos/masterdata/member/MemberTextBox.h"

#include <QLabel>

namespace
{
template <class Entity>
QString codeOf(const Entity* record)
{
    return record ? record->getKode() : QString();
}
} // namespace

PaymentParties::PaymentParties(const Boxes& boxes, KorDialog* form)
    : QObject(form), m_boxes(boxes), m_form(form),
      m_memberBox(new MemberTextBox(boxes.member, service<BusinessMember>("Member"))),
      m_agentBox(boxes.agent ? new AgentTextBox(boxes.agent, service<BusinessAgent>("Agent")) : nullptr),
      m_employeeBox(boxes.employee ? new EmployeeTextBox(boxes.employee, service<BusinessEmployee>("Employee"))
                                   : nullptr),
      m_account(new AccountField(boxes.cashAccount, boxes.cashAccountName, form))
{
    if (!m_agentBox || !m_employeeBox)
        return;
    m_memberBox->setNextWidget(boxes.agent);
    m_agentBox->setNextWidget(boxes.employee);
}

void PaymentParties::lookUp()
{
    const EntityPoolScope scope(m_found);
    // A code typed by hand counts like one that was picked from the list; a wrong one must not vanish silently.
    const auto unknown = [](const QLineEdit* box) {
        return box ? tr("There is no record with the code: %1").arg(box->text()) : QString();
    };
    m_account->check(tr("Please select a Cash Accounts"), tr("Please select a valid Cash Accounts"));
    // A database that does not answer is told once, not once a box.
    if (!m_account->couldAsk() ||
        !lookUp<BusinessMember>(m_boxes.member, "Member", unknown(m_boxes.member), &m_member) ||
        !lookUp<BusinessAgent>(m_boxes.agent, "Agent", unknown(m_boxes.agent), &m_agent))
        return;
    lookUp<BusinessEmployee>(m_boxes.employee, "Employee", unknown(m_boxes.employee), &m_employee);
}

/** False when the records could not be asked. */
template <class Service, class Entity>
bool PaymentParties::lookUp(QLineEdit* box, const QString& serviceName, const QString& unknown, Entity** found)
{
    *found = nullptr;
    if (!box || box->text().isEmpty())
        return true;
    auto* records = service<Service>(serviceName);
    records->clearErrors();
    *found = records->findByCode(box->text());
    if (records->hasError()) {
        m_form->addError(box, records->takeErrors().trimmed());
        return false;
    }
    if (!*found)
        m_form->addError(box, unknown);
    return true;
}

void PaymentParties::showMember(const EntityMember* member) { m_boxes.member->setText(codeOf(member)); }

void PaymentParties::showAgent(const EntityAgent* agent) { m_boxes.agent->setText(codeOf(agent)); }

void PaymentParties::showEmployee(const EntityEmployee* employee) { m_boxes.employee->setText(codeOf(employee)); }

EntityBank* PaymentParties::cashAccount() const { return m_account->account(); }

void PaymentParties::showDefaultAccount()
{
    const EntityPoolScope scope(m_found);
    auto* accounts = service<BusinessBank>("Bank");
    m_account->show(accounts->cashOnHand());
    if (accounts->hasError())
        KorErrorBox::critical(m_form, KorDialog::tr("Error"), accounts->takeErrors());
}

void PaymentParties::showAccount(const QString& code) { m_account->showCode(code); }
