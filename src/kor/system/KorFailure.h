#pragma once

#include <QCoreApplication>
#include <QString>

/**
 * One database failure in its parts. Mappers and services pass on a single text with all of it, for callers and the
 * log; an error box shows the parts separately, see KorToldFailure.
 */
struct KorFailure
{
    Q_DECLARE_TR_FUNCTIONS(KorFailure)

public:
    enum Connection { Kept, Lost, LostWhileSaving };

    /** What happened, in plain words. */
    QString sentence;
    /** What to do if the data is not saved; may be empty. */
    QString advice;
    /** The driver's message. */
    QString words;
    /** The statement with its values; empty if unknown. */
    QString statement;

    /**
     * If the connection was not lost, the SQLSTATE selects the plain words, and partly the statement's first word. The
     * holders are those who held the lock when waiting for it timed out.
     */
    [[nodiscard]] static KorFailure of(Connection connection, const QString& state, const QString& words,
                                       const QString& statement, const QString& holders = {});
    /**
     * All of it as one text: plain words only for a lost connection or a lock timeout with known holders, then the
     * driver's message, then the separator and the statement. The parts are remembered so that KorToldFailure can find
     * them in a text.
     */
    [[nodiscard]] QString told(const QString& separator = QStringLiteral("\r\n")) const;
    /** True for an error that only follows from an earlier one in the same transaction. */
    [[nodiscard]] bool isConsequence() const { return sentence.isEmpty(); }
};

/** An error text split for an error box: plain words first, then the rest, with statements separate. */
struct KorToldFailure
{
    /** Empty if the text contains no database failure. */
    QString sentence;
    QString advice;
    /** The text without its statements. */
    QString words;
    /** The statements, and the driver's quotations of them. */
    QString details;

    /** Splits the text by the failures remembered by told(); nothing is guessed. */
    [[nodiscard]] static KorToldFailure in(const QString& text);
    [[nodiscard]] bool isKnown() const { return !sentence.isEmpty(); }
    /** Sentence, advice and words below each other; a text without a failure is returned unchanged. */
    [[nodiscard]] QString text() const;
};
