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

    [[nodiscard]] RecordField<EntityMember>* memberField() const { return m_member; }
    // Null where the form has no such box.
    [[nodiscard]] RecordField<EntityAgent>* agentField() const { return m_agent; }
    [[nodiscard]] RecordField<EntityEmployee>* employeeField() const { return m_employee; }
    [[nodiscard]] AccountField* cashField() const { return m_account; }

    /** Reads whom the codes stand for; what is wrong with them becomes an error of the form. */
    void lookUp();
    // As far as they were looked up; null for an empty box. They live as long as the form.
    [[nodiscard]] EntityMember* member() const;
    [[nodiscard]] EntityAgent* agent() const;
    [[nodiscard]] EntityEmployee* employee() const;
    [[nodiscard]] EntityBank* cashAccount() const;

    // They are borrowed.
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
