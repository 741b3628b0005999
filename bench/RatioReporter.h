#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/** Prints a line a task: the program's median, the one by hand, their ratio, and the statements that each sent. */
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
