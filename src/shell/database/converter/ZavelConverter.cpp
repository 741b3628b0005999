#include "shell/database/converter/ZavelConverter.h"

#include "app/configuration/BusinessConfiguration.h"
#include "kor/persistence/KorDatabase.h"
#include "shell/database/converter/Conversion.h"
#include "shell/database/converter/ConversionMark.h"
#include "shell/database/converter/MasterSteps.h"
#include "shell/database/converter/PaymentStep.h"
#include "shell/database/converter/PurchaseStep.h"

#include <QSqlError>

namespace
{
constexpr int rowsBetweenLines = 250;
constexpr int keysShown = 8;
} // namespace

/** How to convert one table of the former system. */
struct ConversionStep
{
    QString text;
    QString table;
    QString linesTable;
    std::function<void(const LegacyRow&)> take;
    std::function<void()> begin;
    std::function<void()> end;
};

ZavelConverter::ZavelConverter(const ConnectionSettings& source, QObject* parent)
    : QObject(parent), m_source(source), m_services(makeConversionServices(this))
{}

void ZavelConverter::process()
{
    convert();
    emit finished();
}

void ZavelConverter::convert()
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const QSqlDatabase target = KorDatabase::current();
    if (!target.isOpen()) {
        fail(target.lastError().text());
        return;
    }
    LegacySource source(m_source);
    if (!source.open()) {
        fail(source.failure());
        return;
    }
    if (!ConversionMark::claim()) {
        fail(tr("The data are being brought over at another workstation."));
        return;
    }
    ConversionMark mark(m_services.configuration);
    const bool resumed = mark.isSet();
    if (!mark.set(tr("%1 on %2").arg(m_source.database, m_source.host))) {
        fail(m_services.configuration->takeErrors());
        return;
    }
    Conversion run(m_services, source, resumed);
    const QString failure = runSteps(run);
    tellCounts(run);
    if (!failure.isEmpty())
        fail(failure);
    else if (!mark.remove())
        fail(m_services.configuration->takeErrors());
}

QString ZavelConverter::runSteps(Conversion& run)
{
    PurchaseStep purchases(run);
    PaymentStep payments(run);
    const auto master = [&run](void (*take)(Conversion&, const LegacyRow&)) {
        return [&run, take](const LegacyRow& row) { take(run, row); };
    };
    const QList<ConversionStep> steps{
        {tr("Converting company profile"), "tblprs", {}, master(MasterSteps::company), {}, {}},
        {tr("Converting item type"), "tbljenisbrg", {}, master(MasterSteps::itemType), {}, {}},
        {tr("Converting item unit"), "tblsatuan", {}, master(MasterSteps::unit), {}, {}},
        {tr("Converting suppliers"), "tblsupplier", {}, master(MasterSteps::supplier), {}, {}},
        {tr("Converting members"), "tblmember", {}, master(MasterSteps::member), {}, {}},
        {tr("Converting agents"), "tblagent", {}, master(MasterSteps::agent), {}, {}},
        {tr("Converting employees"), "tblrpelayan", {}, master(MasterSteps::employee), {}, {}},
        {tr("Converting items"), "tblbarang", {}, master(MasterSteps::item), {}, {}},
        {tr("Converting purchases"), "tblbeli", "tblbelidetail", [&](const LegacyRow& row) { purchases.convert(row); },
         [&] { purchases.begin(); }, [&] { purchases.end(); }},
        {tr("Converting payment"),
         "tblbayarbeli",
         "tblbayarbelidetail",
         [&](const LegacyRow& row) { payments.convert(row); },
         {},
         [&] { payments.end(); }},
    };
    int unreadable = 0;
    for (int i = 0; i < steps.size(); ++i) {
        const int percent = 100 * i / steps.size();
        tell(percent, steps.at(i).text);
        QString failure = runStep(run, steps.at(i), percent);
        if (!failure.isEmpty())
            return failure;
        unreadable += run.rows().failure().isEmpty() ? 0 : 1;
        tell(100 * (i + 1) / steps.size(), tr("done"));
    }
    return unreadable == steps.size() ? tr("The source database holds no table of the former system.") : QString();
}

QString ZavelConverter::runStep(Conversion& run, const ConversionStep& step, int percent)
{
    run.beginTable(step.table, step.linesTable);
    if (step.begin)
        step.begin();
    const bool read = run.source().read("select * from " + step.table, [&](const LegacyRow& row) {
        EntityPool records;
        const EntityPoolScope scope(records);
        run.beginRow();
        step.take(row);
        run.endRow();
        if (run.rows().read() % rowsBetweenLines == 0)
            tell(percent, tr("%1 rows").arg(run.rows().read()));
        return run.lost().isEmpty() && !m_stopped;
    });
    if (!run.lost().isEmpty())
        return run.lost();
    if (!read) {
        run.rows().fail(run.source().failure());
        if (!run.source().isOpen())
            return tr("The connection to the source database is lost: %1").arg(run.source().failure());
    }
    if (m_stopped)
        return tr("The conversion has been stopped.");
    if (step.end)
        step.end();
    return {};
}

void ZavelConverter::tell(int percent, const QString& status)
{
    Conversion::log(status);
    emit onProgress(percent, status);
}

void ZavelConverter::tellCounts(const Conversion& run)
{
    QStringList shown;
    for (const ConversionCount& count : run.counts()) {
        shown += count.report(keysShown);
        Conversion::log(count.report(0).join("; "));
    }
    emit report(shown.join('\n'));
}

void ZavelConverter::fail(const QString& reason)
{
    Conversion::log(reason.simplified());
    emit error(reason);
}
