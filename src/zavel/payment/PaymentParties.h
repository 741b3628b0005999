#pragma once

#include "app/context/EntityPool.h"

#include <QObject>

class AccountField;
class AgentTextBox;
class EmployeeTextBox;
class EntityAgent;
class EntityBank;
class EntityEmployee;
class EntityMember;
class KorDialog;
class MemberTextBox;
class QLabel;
class QLineEdit;

/**
 * Who takes part in a payment and where the money goes: makes the boxes of a payment form find members, agents,
 * waitresses and accounts, and knows whom the codes in them stand for. The ways of selling share it; the boxes are
 * borrowed.
 */
class PaymentParties : public QObject
{
    Q_OBJECT

public:
    /** A way of selling without agents and waitresses has no boxes for them. */
    struct Boxes
    {
        QLineEdit* member;
        QLineEdit* agent;
        QLineEdit* employee;
        QLineEdit* cashAccount;
        QLabel* cashAccountName;
    };

    PaymentParties(const Boxes& boxes, KorDialog* form);

    [[nodiscard]] MemberTextBox* memberBox() const { return m_memberBox; }
    // Null where the form has no such box.
    [[nodiscard]] AgentTextBox* agentBox() const { return m_agentBox; }
    [[nodiscard]] EmployeeTextBox* employeeBox() const { return m_employeeBox; }
    [[nodiscard]] AccountField* cashField() const { return m_account; }

    /** Reads whom the codes stand for; what is wrong with them becomes an error of the form. */
    void lookUp();
    // As the last look-up found them; null for an empty box. They live as long as the form.
    [[nodiscard]] EntityMember* member() const { return m_member; }
    [[nodiscard]] EntityAgent* agent() const { return m_agent; }
    [[nodiscard]] EntityEmployee* employee() const { return m_employee; }
    [[nodiscard]] EntityBank* cashAccount() const;

    void showMember(const EntityMember* member);
    void showAgent(const EntityAgent* agent);
    void showEmployee(const EntityEmployee* employee);
    void showDefaultAccount();
    void showAccount(const QString& code);

private:
    template <class Service, class Entity>
    bool lookUp(QLineEdit* box, const QString& serviceName, const QString& unknown, Entity** found);

    Boxes m_boxes;
    KorDialog* m_form;
    MemberTextBox* m_memberBox;
    AgentTextBox* m_agentBox;
    EmployeeTextBox* m_employeeBox;
    AccountField* m_account;
    EntityPool m_found;
    EntityMember* m_member = nullptr;
    EntityAgent* m_agent = nullptr;
    EntityEmployee* m_employee = nullptr;
};
