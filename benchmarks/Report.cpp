// Printing and saving of figures.
#include "benchmarks/Report.h"

#include <cstdio>
#include <fstream>

namespace bench {

void Report::add(const std::string& table, const Figure& figure) {
    if (table != table_) {
        std::printf("\n%s\n%-34s %-26s %12s %-8s %12s  %s\n", table.c_str(), "work", "figure", "value", "",
                    "goal", "verdict");
        table_ = table;
    }
    const bool hasGoal = figure.goal != 0;
    char goal[32] = "-";
    if (hasGoal)
        std::snprintf(goal, sizeof goal, "%s %g", figure.better == Better::Higher ? ">=" : "<=", figure.goal);
    const char* verdict = !hasGoal ? "" : figure.met() ? "met" : "MISSED";
    std::printf("%-34s %-26s %12.4g %-8s %12s  %s\n", figure.work.c_str(), figure.what.c_str(), figure.value,
                figure.unit.c_str(), goal, verdict);
    std::fflush(stdout);
    allMet_ = allMet_ && figure.met();
    nlohmann::ordered_json entry = {
        {"work", figure.work}, {"figure", figure.what}, {"value", figure.value}, {"unit", figure.unit}};
    if (hasGoal) {
        entry["goal"] = goal;
        entry["met"] = figure.met();
    }
    tables_[table].push_back(entry);
}

void Report::save(const std::string& file) const {
    nlohmann::ordered_json all = nlohmann::ordered_json::object();
    if (std::ifstream in(file); in)
        all = nlohmann::ordered_json::parse(in, nullptr, false);
    if (!all.is_object())
        all = nlohmann::ordered_json::object();
    for (const auto& [table, figures] : tables_.items())
        all[table] = figures;
    std::ofstream(file) << all.dump(2) << "\n";
}

} // namespace bench
