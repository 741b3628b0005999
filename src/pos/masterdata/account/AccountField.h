#pragma once

#include "app/context/EntityPool.h"
#include "pos/masterdata/account/BankTextBox.h"

class KorDialog;
class QLabel;

/**
 * The box of a form in which an account is named, with its name beside it. A code typed by hand counts like one picked
 * from the list. The widgets are borrowed; the account lives as long as the field.
 */
class AccountField : public QObject
{
    Q_OBJECT

public:
    AccountField(QLineEdit* code, QLabel* name, KorDialog* form);

    [[nodiscard]] BankTextBox* box() const { return m_box; }
    /** The account that the box names, as far as it was looked up. */
    [[nodiscard]] EntityBank* account() const { return m_account; }
    /** Null empties the field. The account is borrowed. */
    void show(EntityBank* account);
    /** Looks the code up; a failure to read is told in a box. */
    void showCode(const QString& code);
    /**
     * Reports an empty box and an unknown code on the form; false for both, and when the accounts cannot be read. The
     * box may be empty where there is no text for it.
     */
    bool check(const QString& missing, const QString& unknown);
    /** False when the accounts could not be asked at the last look. */
    [[nodiscard]] bool couldAsk() const { return m_couldAsk; }

signals:
    /** Another account, or none; told again with every look at the box. */
    void changed();

private:
    /** What failed, or nothing. */
    [[nodiscard]] QString lookUp();

    QLineEdit* m_code;
    QLabel* m_name;
    KorDialog* m_form;
    BankTextBox* m_box;
    EntityPool m_found;
    EntityBank* m_account = nullptr;
    bool m_couldAsk = true;
};
