#include "BenchMain.h"

#include "RatioReporter.h"

#include <QApplication>

namespace
{
const int turns = qEnvironmentVariableIntValue("ZAVEL_BENCH_TURNS") > 0
                      ? qEnvironmentVariableIntValue("ZAVEL_BENCH_TURNS")
                      : 15;

void time(benchmark::State& state, const Contest& contest, const std::function<void()>& work)
{
    using Clock = std::chrono::steady_clock;
    const StatementCount statements;
    double rounds = 0;
    for (auto unused : state) {
        (void)unused;
        contest.prepare();
        const Clock::time_point start = Clock::now();
        work();
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        ++rounds;
    }
    if (statements.count() > 0)
        state.counters["statements"] = statements.count() / rounds;
}
} // namespace

void enter(const Contest& contest)
{
    const auto add = [&contest](const char* who, const std::function<void()>& work) {
        benchmark::RegisterBenchmark((contest.task + '/' + who).c_str(),
                                     [contest, work](benchmark::State& state) { time(state, contest, work); })
            ->UseManualTime()
            ->Iterations(contest.roundsPerTurn)
            ->Repetitions(turns)
            ->ReportAggregatesOnly(false);
    };
    add("program", contest.program);
    add("by hand", contest.byHand);
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::vector<char*> arguments(argv, argv + argc);
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    arguments.push_back(interleaved);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    // A database that somebody made for several runs, or one of its own.
    const QString existing = qEnvironmentVariable("ZAVEL_BENCH_DATABASE");
    const auto database =
        existing.isEmpty() ? std::make_unique<TestDatabase>() : std::make_unique<TestDatabase>(existing);
    loginAsAdmin();
    ByHand byHand(database->name());
    setUp(*database, byHand);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
