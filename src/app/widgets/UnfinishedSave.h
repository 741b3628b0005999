#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

class KorBusinessLogic;
class QWidget;

/**
 * A record that is saved, while something that follows from it has failed behind its transaction. Entered again it
 * would stand twice, so the person is told what is saved and what is not, and may have the rest done.
 */
struct UnfinishedSave
{
    Q_DECLARE_TR_FUNCTIONS(UnfinishedSave)

public:
    /** What is done, as a whole sentence. */
    QString done;
    /** What is not. */
    QString missing;
    /** How to get it done without this box; it may be empty. */
    QString later;
    /** Does what is missing; run again, it does no harm. Its failures are kept by the service. */
    std::function<bool()> finish;

    /** "NB-0001 is saved. Please do not enter it again." */
    [[nodiscard]] static QString saved(const QString& number);
    /** How a document is finished that does all that follows with every save. */
    [[nodiscard]] static QString laterByOk();

    /** Says so, with the failures that the service holds, until all is done or put off; true when it is done. */
    bool offer(QWidget* parent, KorBusinessLogic* service) const;
};
