#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/converter/ConversionServices.h"

#include <QObject>

#include <atomic>

class Conversion;
struct ConversionStep;

/**
 * Brings the data of a former system over into the open database, table after table, through the services. Rows that
 * cannot be taken over are counted with the reason and hold nothing up. Make it on the application's thread, move it
 * to a thread of its own.
 */
class ZavelConverter final : public QObject
{
    Q_OBJECT

public:
    explicit ZavelConverter(const ConnectionSettings& source, QObject* parent = nullptr);

    /** Ends the run after the row in hand; may be called from any thread. */
    void stop() { m_stopped = true; }

public slots:
    void process();

signals:
    void onProgress(int perc, const QString& status);
    /** What became of the rows of each table. */
    void report(const QString& text);
    /** The run could not begin, or not come to its end. */
    void error(const QString& err);
    void finished();

private:
    void convert();
    /** Empty where all steps came to their end, else why not. */
    [[nodiscard]] QString runSteps(Conversion& run);
    [[nodiscard]] QString runStep(Conversion& run, const ConversionStep& step, int percent);
    void tell(int percent, const QString& status);
    void tellCounts(const Conversion& run);
    void fail(const QString& reason);

    ConnectionSettings m_source;
    ConversionServices m_services;
    std::atomic_bool m_stopped{false};
};
