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
 * Base of the forms that settle open amounts between the restaurant and one person: the person's open documents with an
 * amount for each, the account that pays or receives the money, and the total. Choosing the person reads the documents.
 * A subclass sets the fields and texts and defines how documents are read.
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
        /** The field for an EntityContact. */
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
        /** %1 is the number of the document. */
        QString unpaidDocument;
        /** Empty if the account is optional. */
        QString noAccount;
        QString unknownAccount;
    };

    // Defined by subclasses.
    /** Shows further details of the person; null if no person is chosen. */
    virtual void showPerson(const EntityContact* person) { Q_UNUSED(person) }
    /** One line per open document of the person. */
    [[nodiscard]] virtual QList<KorEntity*> readOpenLines(const EntityContact& person) = 0;
    [[nodiscard]] virtual int documentIdOf(const KorEntity& line) const = 0;
    [[nodiscard]] virtual QString documentNoOf(const KorEntity& line) const = 0;
    [[nodiscard]] virtual const Money* amountOf(const KorEntity& line) const = 0;
    /** A line whose amount is missing, for the error text; null if there is none. Called only if there are lines. */
    [[nodiscard]] virtual const KorEntity* lineWithoutAmount() const = 0;
    /** Adds errors about the lines; by default if there are none or an amount is missing. */
    virtual void checkLines();
    /** What the form pays besides its lines, in minor units. */
    [[nodiscard]] virtual qint64 furtherAmount() const { return 0; }
    /** Adds errors about further amounts of the form. */
    virtual void checkAmounts() {}
    /** Called when the total has changed. */
    virtual void totalChanged() {}

    /** Call it once, at the end of the constructor. "documents" is the service that reads the lines. */
    void setUpSettlement(const Boxes& boxes, const Words& words, SettlementTab* page, KorBusinessLogic* documents);
    /** Adds a second page, whose amounts are part of the total. */
    void addLinesPage(AppLinesTab* page, Qt::Key key);
    /** Shows the person, which is borrowed, with the open documents. Null shows an empty form. */
    void takePerson(EntityContact* person);
    /** Reads the open documents again. Unsaved amounts are lost. */
    void readAgain();
    /** Shows a stored settlement, with or without the person's other open documents. */
    void showStored(EntityContact* person, const QList<KorEntity*>& lines, bool offerOthers);

    [[nodiscard]] EntityContact* person() const;
    [[nodiscard]] AccountField* accountField() const { return m_account; }
    /** The sum of all lines and of furtherAmount(), in minor units. */
    [[nodiscard]] qint64 sum() const;
    /** The stored lines that are not in the given list. */
    [[nodiscard]] QList<KorEntity*> removedLines(const QList<KorEntity*>& taken) const;

private:
    void checkPerson();
    // Both return the error text, or an empty text.
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
    // The person whose documents are shown; KorNoValue also if they could not be read.
    int m_readForId = KorNoValue;
    int m_storedPersonId = KorNoValue;
    QList<KorEntity*> m_stored;
};
