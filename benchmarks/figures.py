"""The tables that a run prints, and the same as JSON."""
import json

COLUMNS = "{:34} {:26} {:>12} {:8} {:>12}  {}"


class Figures:
    def __init__(self):
        self.tables = {}

    def table(self, name):
        print(f"\n{name}\n" + COLUMNS.format("work", "figure", "value", "", "goal", "verdict"))
        self.rows = self.tables.setdefault(name, [])

    def add(self, work, figure, value, unit, goal=None):
        """Prints the figure and notes it; it is to be no larger than its goal."""
        met = None if goal is None else value <= goal
        wanted = "-" if goal is None else f"<= {goal:g}"
        verdict = "" if met is None else "met" if met else "MISSED"
        print(COLUMNS.format(work, figure, f"{value:.4g}", unit, wanted, verdict), flush=True)
        row = {"work": work, "figure": figure, "value": value, "unit": unit}
        self.rows.append(row if met is None else row | {"goal": wanted, "met": met})

    def save(self, report):
        """Adds the tables to those that the file has already."""
        try:
            with open(report) as file:
                everything = json.load(file)
        except (OSError, ValueError):
            everything = {}
        with open(report, "w") as file:
            json.dump(everything | self.tables, file, indent=2)

    def all_met(self):
        return all(row.get("met", True) for rows in self.tables.values() for row in rows)
