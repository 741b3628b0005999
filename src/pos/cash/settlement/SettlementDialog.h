#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

class AccountField;
class AppLinesTab;
class EntityContact;
class KorBusinessLogic;
class Money;
class MoneyEdit;
class QDateEdit;
class QLabel;
class QTabWidget;
class RecordFieldBase;
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
    KorEntity* getEntity() override;

public slots:
    void onTabInvoicesSelected();

protected:
    struct Boxes
    {
        /** Names an EntityContact. */
        RecordFieldBase* person;
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
    /** Shows what the form tells of the person besides code and name; null when the box names nobody. */
    virtual void showPerson(const EntityContact* person) { Q_UNUSED(person) }
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

    /** To be called once, at the end of the form's constructor; the service is that of the lines. */
    void setUpSettlement(const Boxes& boxes, const Words& words, SettlementTab* page, KorBusinessLogic* documents);
    /** A second page, whose amounts are part of the total. */
    void addLinesPage(AppLinesTab* page, Qt::Key key);
    /** Shows the person with what is open; the person is borrowed. Null shows an empty form. */
    void takePerson(EntityContact* person);
    /** Shows what is open by now; amounts that were entered and not saved are gone. */
    void readAgain();
    /** Shows what a stored settlement settles; with the person's other open documents on offer, or alone. */
    void showStored(EntityContact* person, const QList<KorEntity*>& lines, bool offerOthers);

    [[nodiscard]] EntityContact* person() const;
    [[nodiscard]] AccountField* accountField() const { return m_account; }
    /** What all lines come to, in minor units. */
    [[nodiscard]] qint64 sum() const;
    /** Of the stored lines, those that are not among the ones that the record takes now. */
    [[nodiscard]] QList<KorEntity*> removedLines(const QList<KorEntity*>& taken) const;

private:
    void checkPerson();
    // What failed, or nothing.
    [[nodiscard]] QString readLines();
    [[nodiscard]] QString readLinesOfAnother();
    void showTotal();

    Boxes m_boxes{};
    Words m_words;
    SettlementTab* m_page = nullptr;
    AccountField* m_account = nullptr;
    KorBusinessLogic* m_documents = nullptr;
    // The open documents of the person.
    EntityPool m_open;
    // Whose documents are shown; KorNoValue also when they could not be read.
    int m_readForId = KorNoValue;
    int m_storedPersonId = KorNoValue;
    QList<KorEntity*> m_stored;
};
