"""One table of what a run of the benchmarks found: each figure beside its base, its limit and the run before. All runs stand in bench/history.csv."""
import csv
import os
import subprocess

HISTORY = os.path.join(os.path.dirname(os.path.abspath(__file__)), "history.csv")
STEP_BACK = 1.1  # times the figure of the run before: more is told


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.strip()


class Figures:
    """The ratios of one part of the run; REPORTS are printed as they come, and kept at its end."""

    def __init__(self, base, unit):
        self.unit = unit
        self.missed = False
        self.rows = []
        self.before = self._before()
        print(f"{'':<58}{base:>12}{'program':>12} {unit:<4}{'ratio':>7}{'before':>8}{'at most':>9}")

    @staticmethod
    def _before():
        if not os.path.exists(HISTORY):
            return {}
        with open(HISTORY, encoding="utf-8", newline="") as file:
            return {row["work"]: float(row["ratio"]) for row in csv.DictReader(file)}

    def add(self, work, base, program, limit=None, most=None, unit=None):
        """limit: of the ratio. most: of the program's figure, in the unit of the table."""
        ratio = program / base
        before = self.before.get(work)
        over = (limit is not None and ratio > limit) or (most is not None and program > most)
        self.missed = self.missed or over
        told = "" if before is None else f"{before:.2f}"
        allowed = f"{most:g}" if limit is None and most is not None else limit or ""
        remark = "  OVER" if over else "  slower than before" if before is not None and ratio > before * STEP_BACK else ""
        print(f"{work:<58}{base:>12.1f}{program:>12.1f} {unit or self.unit:<4}{ratio:>7.2f}{told:>8}{allowed:>9}{remark}")
        self.rows.append((work, f"{ratio:.3f}"))

    def keep(self):
        """Adds the run to the history. Returns 1 where a figure was over its limit."""
        is_new = not os.path.exists(HISTORY)
        when, commit = output("date", "-u", "+%Y-%m-%dT%H:%MZ"), output("git", "rev-parse", "--short", "HEAD")
        with open(HISTORY, "a", encoding="utf-8", newline="") as file:
            writer = csv.writer(file, lineterminator="\n")
            if is_new:
                writer.writerow(("when", "commit", "work", "ratio"))
            writer.writerows((when, commit, *row) for row in self.rows)
        return 1 if self.missed else 0
