// The table that a run prints, and the same as JSON.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace bench {

enum class Better { Higher, Lower };

// One measured number; a goal of 0 means that there is none.
struct Figure {
    std::string work;
    std::string what;
    double value = 0;
    std::string unit;
    double goal = 0;
    Better better = Better::Higher;

    bool met() const { return goal == 0 || (better == Better::Higher ? value >= goal : value <= goal); }
};

class Report {
  public:
    // Prints the figure as soon as it is known.
    void add(const std::string& table, const Figure& figure);
    // Adds the figures to those the file has of other tables.
    void save(const std::string& file) const;
    bool allMet() const { return allMet_; }

  private:
    std::string table_;
    nlohmann::ordered_json tables_ = nlohmann::ordered_json::object();
    bool allMet_ = true;
};

} // namespace bench
