#include "RatioReporter.h"

#include <algorithm>
#include <cstdio>

namespace
{
double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}
} // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const std::string& name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        const std::string task = name.substr(0, slash);
        if (m_figures.find(task) == m_figures.end())
            m_tasks.push_back(task);
        Figures& figures = m_figures[task];
        const double milliseconds = run.real_accumulated_time / static_cast<double>(run.iterations) * 1000;
        (name.substr(slash + 1) == "program" ? figures.program : figures.byHand).push_back(milliseconds);
        const auto statements = run.counters.find("statements");
        if (statements != run.counters.end())
            figures.statements = statements->second;
    }
}

void RatioReporter::Finalize()
{
    for (const std::string& task : m_tasks) {
        const Figures& figures = m_figures[task];
        const double program = median(figures.program);
        const double byHand = median(figures.byHand);
        std::printf("| %-58s | %8.3f | %8.3f | %5.2f | %3.0f |\n", task.c_str(), program, byHand, program / byHand,
                    figures.statements);
    }
}
