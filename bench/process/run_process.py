"""run_process.py BUILD DATA: times whole processes, ptk-console and a bare C program on the same card in turn, and prints their ratio."""
import os
import sqlite3
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), ".."))
from figures import Figures  # noqa: E402

RUNS = 101
LIMIT = 1.15
PAGES_LIMIT = 3  # a report as a PDF file, beside the same one as text
FIRST_EMPLOYEE = 40  # as the benchmarks' data has it; everybody's last shift is on 31 October 2026


def milliseconds(command):
    start = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    return (time.perf_counter() - start) * 1e3


def name_of(database, employee):
    with sqlite3.connect(database) as connection:
        return connection.execute("SELECT FirstName || ' ' || LastName FROM Employee WHERE EmployeeID = ?", (employee,)).fetchone()[0]


def commands(build, folder):
    """The bare program's and the console's, for the last two weeks of the data."""
    database = os.path.join(folder, "system", "ptk_11.mdb")
    bare = [os.path.join(build, "bench", "bare_card"), database, str(FIRST_EMPLOYEE), "2026-10-18 00:00:00", "2026-11-01 00:00:00"]
    program = [os.path.join(build, "ptk-console"), "--program-folder", folder, "time-card", "--employee", name_of(database, FIRST_EMPLOYEE)]
    return bare, [*program, "--from", "10/18/2026", "--to", "10/31/2026"]


def compare(figures, work, base, program, limit):
    times = [(milliseconds(base), milliseconds(program)) for _ in range(RUNS)]
    figures.add(work, *(statistics.median(column) for column in zip(*times)), limit)


def main(build, data):
    figures = Figures("bare", "ms")
    for name, people in (("1m", "1,000"), ("staff", "10,000")):
        folder = os.path.join(data, "ui-" + name)
        bare, program = commands(build, folder)
        compare(figures, f"process: a card printed, one of {people} employees", bare, program, LIMIT)
        os.makedirs(os.path.join(folder, "reports"), exist_ok=True)
        report = [*program[:3], "report", "timecard", *program[4:]]
        compare(figures, f"process: a card's report as text (base) and as pages; {people} employees", report, [*report, "--format", "pdf"], PAGES_LIMIT)
    return figures.keep()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:3]))
