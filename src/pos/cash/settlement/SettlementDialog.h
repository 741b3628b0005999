#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

class AccountField;
class AppLinesTab;
class EntityBank;
class EntityContact;
class KorBusinessLogic;
class Money;
class MoneyEdit;
class QDateEdit;
class QLabel;
class QTabWidget;
class SettlementTab;

/**
 * Base of the forms that settle what is open between the house and one person: the person's documents, an amount for
 * each, the account that gives or takes the money, and the total. Choosing the person reads the documents. A form
 * names its boxes and words and tells how its documents are read.
 */
class SettlementDialog : public KorDialog
{
    Q_OBJECT

public:
    explicit SettlementDialog(QWidget* parent = nullptr) : KorDialog(parent) {}

    bool validate() final;

public slots:
    void onTabInvoicesSelected();

protected:
    struct Boxes
    {
        QLineEdit* person;
        QDateEdit* date;
        QLineEdit* account;
        QLabel* accountName;
        QTabWidget* pages;
        MoneyEdit* total;
        QDialogButtonBox* buttons;
    };
    struct Words
    {
        QString noPerson;
        QString noDocument;
        /** With the number of the document as %1. */
        QString unpaidDocument;
        /** Empty where the account may be left out. */
        QString noAccount;
        QString unknownAccount;
    };

    // What a form tells.
    [[nodiscard]] virtual EntityContact* findPerson(const QString& code) = 0;
    /** Null when nobody is chosen. */
    virtual void showPerson(const EntityContact* person) = 0;
    /** A line for each open document of the person. */
    [[nodiscard]] virtual QList<KorEntity*> readOpenLines(const EntityContact& person) = 0;
    [[nodiscard]] virtual int documentIdOf(const KorEntity& line) const = 0;
    [[nodiscard]] virtual QString documentNoOf(const KorEntity& line) const = 0;
    [[nodiscard]] virtual const Money* amountOf(const KorEntity& line) const = 0;
    /** The line that is told to lack its amount, null where none does; asked only when there are lines. */
    [[nodiscard]] virtual const KorEntity* lineWithoutAmount() const = 0;
    /** Reports what is wrong with the lines; by default that there is none, or one without its amount. */
    virtual void checkLines();
    /** What the form pays besides its lines, in minor units. */
    [[nodiscard]] virtual qint64 furtherAmount() const { return 0; }
    /** Reports what is wrong with further amounts of the form. */
    virtual void checkAmounts() {}
    /** The total has changed. */
    virtual void totalChanged() {}

    /** To be called once, at the end of the form's constructor; the services are those of the person and the lines. */
    void setUpSettlement(const Boxes& boxes, const Words& words, SettlementTab* page, KorBusinessLogic* people,
                         KorBusinessLogic* documents);
    /** A second page, whose amounts are part of the total. */
    void addLinesPage(AppLinesTab* page, Qt::Key key);
    /** Shows the person with what is open; the person is borrowed. Null shows an empty form. */
    void takePerson(EntityContact* person);
    /** Shows what is open by now; amounts that were entered and not saved are gone. */
    void readAgain();
    /** Shows a stored settlement; with the person's other open documents on offer, or with its own lines alone. */
    void showStored(EntityContact* person, EntityBank* account, const QList<KorEntity*>& lines, bool offerOthers);

    [[nodiscard]] EntityContact* person() const { return m_person; }
    [[nodiscard]] EntityBank* account() const;
    [[nodiscard]] AccountField* accountField() const { return m_account; }
    /** What all lines come to, in minor units. */
    [[nodiscard]] qint64 sum() const;
    /** Of the stored lines, those that are not among the ones that the record takes now. */
    [[nodiscard]] QList<KorEntity*> removedLines(const QList<KorEntity*>& taken) const;

private:
    // Those that read return what failed, or nothing.
    void personTyped();
    [[nodiscard]] QString choosePerson();
    [[nodiscard]] QString changePerson(EntityContact* person);
    [[nodiscard]] QString readLines();
    void showChosen(EntityContact* person);
    void tell(const QString& failure);
    void showTotal();

    Boxes m_boxes{};
    Words m_words;
    SettlementTab* m_page = nullptr;
    AccountField* m_account = nullptr;
    KorBusinessLogic* m_people = nullptr;
    KorBusinessLogic* m_documents = nullptr;
    // Whom the typed codes stood for; they live as long as the form, as its record points at them.
    EntityPool m_found;
    // The open documents of the person.
    EntityPool m_open;
    EntityContact* m_person = nullptr;
    // What was made of the person's code already, so that nothing is read or told twice.
    QString m_handledCode;
    bool m_linesKnown = false;
    int m_storedPersonId = KorNoValue;
    QList<KorEntity*> m_stored;
};
