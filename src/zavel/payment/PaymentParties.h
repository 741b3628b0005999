#pragma once

#include <QObject>

class AccountField;
class EntityAgent;
class EntityBank;
class EntityEmployee;
class EntityMember;
class KorDialog;
class QLabel;
class QLineEdit;
template <typename Entity>
class RecordField;

/**
 * The people of a payment and the account that receives the money: connects the boxes of a payment form with the
 * lookups of members, agents, waitresses and accounts, and finds the records of the codes in them. Used by all payment
 * forms; does not own the boxes.
 */
class PaymentParties : public QObject
{
    Q_OBJECT

public:
    /** Null for boxes that the form does not have, such as agent and waitress. */
    struct Boxes
    {
        QLineEdit* member;
        QLineEdit* agent;
        QLineEdit* employee;
        QLineEdit* cashAccount;
        QLabel* cashAccountName;
    };

    PaymentParties(const Boxes& boxes, KorDialog* form);

    [[nodiscard]] RecordField<EntityMember>* memberField() const { return m_member; }
    // Null if the form has no such box.
    [[nodiscard]] RecordField<EntityAgent>* agentField() const { return m_agent; }
    [[nodiscard]] RecordField<EntityEmployee>* employeeField() const { return m_employee; }
    [[nodiscard]] AccountField* cashField() const { return m_account; }

    /** Reads the records of the codes in the boxes; an unknown code becomes an error of the form. */
    void lookUp();
    // The records found by lookUp(); null for an empty box. Valid as long as the form.
    [[nodiscard]] EntityMember* member() const;
    [[nodiscard]] EntityAgent* agent() const;
    [[nodiscard]] EntityEmployee* employee() const;
    [[nodiscard]] EntityBank* cashAccount() const;

    // The records are not owned.
    void showMember(EntityMember* member);
    void showAgent(EntityAgent* agent);
    void showEmployee(EntityEmployee* employee);
    void showDefaultAccount();
    void showAccount(const QString& code);

private:
    AccountField* m_account;
    RecordField<EntityMember>* m_member;
    RecordField<EntityAgent>* m_agent = nullptr;
    RecordField<EntityEmployee>* m_employee = nullptr;
};
