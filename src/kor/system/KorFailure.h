#pragma once

#include <QCoreApplication>
#include <QString>

/**
 * One failure of the database in its parts. Mappers and services hand on one text that holds all of it, for their
 * callers and for the log; a box for the person at the till shows the parts one by one, see KorToldFailure.
 */
struct KorFailure
{
    Q_DECLARE_TR_FUNCTIONS(KorFailure)

public:
    enum Connection { Kept, Lost, LostWhileSaving };

    /** What happened, in plain words. */
    QString sentence;
    /** What to do about it, as far as nothing is saved; it may be empty. */
    QString advice;
    /** The driver's words. */
    QString words;
    /** The statement with its values; empty where the text does not hold it. */
    QString statement;

    /**
     * The SQLSTATE tells the plain words where the connection was kept; the statement's first word tells more. The
     * holders are whoever held what it waited for, where it waited in vain.
     */
    [[nodiscard]] static KorFailure of(Connection connection, const QString& state, const QString& words,
                                       const QString& statement, const QString& holders = {});
    /**
     * The whole as one text: the plain words only where the connection was lost, the driver's words, and the statement
     * behind the separator. The parts are remembered, so that a box can tell them apart in whatever holds the text.
     */
    [[nodiscard]] QString told(const QString& separator = QStringLiteral("\r\n")) const;
    /** What follows from an earlier failure in the same transaction, and only hides why. */
    [[nodiscard]] bool isConsequence() const { return sentence.isEmpty(); }
};

/** A text as a box shows it: the plain words first, the rest of the text behind them, statements apart. */
struct KorToldFailure
{
    /** Empty where the text holds no failure of the database. */
    QString sentence;
    QString advice;
    /** The text without its statements. */
    QString words;
    /** The statements, and what the driver quotes of them. */
    QString details;

    /** Tells the parts of the failures that the text holds apart. They are known from told(), never guessed. */
    [[nodiscard]] static KorToldFailure in(const QString& text);
    [[nodiscard]] bool isKnown() const { return !sentence.isEmpty(); }
    /** Sentence, advice and words, one below the other; any text without a failure is left as it is. */
    [[nodiscard]] QString text() const;
};
