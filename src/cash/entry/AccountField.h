#pragma once

#include "app/context/EntityPool.h"

#include <QObject>

class BankTextBox;
class EntityBank;
class KorDialog;
class QLabel;
class QLineEdit;

/**
 * A box for the code of an account with the account's name beside it. A code typed by hand counts like one that was
 * picked from the list. Both widgets are borrowed; the accounts that were found live as long as the field.
 */
class AccountField final : public QObject
{
    Q_OBJECT

public:
    AccountField(QLineEdit* code, QLabel* name, QObject* parent);

    [[nodiscard]] BankTextBox* box() const { return m_box; }
    /** Fills in the account that was picked from the list. */
    void showPicked();
    void show(const EntityBank* account);
    /** The same by the account's code, which stays where the account has gone. */
    void show(const QString& code);
    /** Reads the account again; null after telling the form what is wrong with the code. */
    EntityBank* require(KorDialog& form, const QString& missing);

private:
    EntityBank* find(const QString& code);

    QLineEdit* m_code;
    QLabel* m_name;
    BankTextBox* m_box;
    EntityPool m_found;
};
