#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/converter/ConversionServices.h"

#include <QObject>

#include <atomic>

class Conversion;
struct ConversionStep;

/**
 * Imports the data of a former system into the open database, table by table, through the services. Rows that cannot be
 * converted are counted with the reason, and the run continues. Create it on the main thread, then move it to its own
 * thread.
 */
class ZavelConverter final : public QObject
{
    Q_OBJECT

public:
    explicit ZavelConverter(const ConnectionSettings& source, QObject* parent = nullptr);

    /** Ends the run after the current row; thread-safe. */
    void stop() { m_stopped = true; }

public slots:
    void process();

signals:
    void onProgress(int perc, const QString& status);
    /** The counts of each table. */
    void report(const QString& text);
    /** The run could not start or was interrupted. */
    void error(const QString& err);
    void finished();

private:
    void convert();
    /** Empty if all steps completed, otherwise the error. */
    [[nodiscard]] QString runSteps(Conversion& run);
    [[nodiscard]] QString runStep(Conversion& run, const ConversionStep& step, int percent);
    void tell(int percent, const QString& status);
    void tellCounts(const Conversion& run);
    void fail(const QString& reason);

    ConnectionSettings m_source;
    ConversionServices m_services;
    std::atomic_bool m_stopped{false};
};
