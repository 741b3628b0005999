#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

class KorBusinessLogic;
class QWidget;

/**
 * Describes a record that is saved, while a following step after its transaction has failed. If the user entered the
 * record again, it would exist twice. So the box says what is saved and what is not, and offers to finish the rest.
 */
struct UnfinishedSave
{
    Q_DECLARE_TR_FUNCTIONS(UnfinishedSave)

public:
    /** What is done; a full sentence. */
    QString done;
    /** What is missing. */
    QString missing;
    /** How to finish it later without this box; may be empty. */
    QString later;
    /** Does the missing step; running it again is safe. Errors are kept in the service. */
    std::function<bool()> finish;

    /** "NB-0001 is saved. Please do not enter it again." */
    [[nodiscard]] static QString saved(const QString& number);
    /** The advice for a document whose every save repeats the following steps. */
    [[nodiscard]] static QString laterByOk();

    /** Shows the box with the service's errors until the step succeeds (true) or the user chooses "Later" (false). */
    bool offer(QWidget* parent, KorBusinessLogic* service) const;
};
