#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/**
 * Prints one line per task: the median of the program and by hand, their ratio, and the number of statements that the
 * program sent.
 */
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Figures
    {
        std::vector<double> program;
        std::vector<double> byHand;
        double statements = 0;
    };

    std::vector<std::string> m_tasks;
    std::map<std::string, Figures> m_figures;
};
