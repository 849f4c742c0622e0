"""Prints the pairs of a Google Benchmark result as one table: the medians of the raw work and of the program's, their ratio, the limit."""
import json
import sys

from figures import Figures

# What the program may cost, as a multiple of the raw work.
LIMITS = {"card with its check": 1.15, "overview of 1,000 employees, newest": 1.2, "overview": 1.5, "history": 1.3, "card": 1.3, "1,000 cards": 1.3, "list": 1.05,
          "one record": 1.05, "backup": 1.15, "review": 1.7, "year-to-date": 1.5, "server, card of 10 million": 1.2, "server, overview": 1.2, "server, list": 1.05,
          "server, one record": 1.05, "server": 1.3}
# What it may take at most, in microseconds.
MOST = {"history": 50_000.0, "payday": 500_000.0}
UNITS = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}


def limit(name, limits):
    return next((value for prefix, value in limits.items() if name.startswith(prefix)), None)


def medians(path):
    """Microseconds of real time by benchmark name."""
    with open(path, encoding="utf-8") as file:
        rows = json.load(file)["benchmarks"]
    return {row["run_name"]: row["real_time"] * UNITS[row["time_unit"]] for row in rows if row.get("aggregate_name") == "median"}


def main(path):
    times = medians(path)
    figures = Figures("raw", "us")
    for name in sorted(run.removesuffix("/raw") for run in times if run.endswith("/raw")):
        figures.add(name, times[name + "/raw"], times[name + "/program"], limit(name, LIMITS), limit(name, MOST))
    return figures.keep()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
