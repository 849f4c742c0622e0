"""growth.py BUILD DATA [SERVER]: whole commands and windows among a million and ten million records beside the same among ten thousand, in files and on the server at this socket.

All databases have 1,000 employees whose last week is the same, so that what is shown is equal: whatever is more was read for nothing."""
import contextlib
import os
import shutil
import sqlite3
import statistics
import subprocess
import sys
import time

from figures import Figures

RUNS = 31
WINDOW_RUNS = 9
LIMIT = 1.2
WEEK = ["--from", "10/25/2026", "--to", "10/31/2026"]
SIZES = {"few": "10 thousand", "1m": "1 million", "10m": "10 million"}
OLDER = "DELETE FROM TimeRecord WHERE StartTime < '2026-10-22'"
TODAYS_BACKUP = "ptk_11-2026-10-17-120000.mdb"  # of the day that the windows' benchmark takes for today
DONE = (0, 3)  # and: problems were found




def sql(server, database, *statements):
    command = ["psql", "-h", server, "-U", "postgres", "-d", database, "-Atq", *(part for statement in statements for part in ("-c", statement))]
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.split()


def few_in_file(data):
    """A copy of the million with ten records of each employee."""
    few = os.path.join(data, "few.trail.mdb")
    if not os.path.exists(few):
        shutil.copyfile(os.path.join(data, "1m.trail.mdb"), few)
        with contextlib.closing(sqlite3.connect(few)) as file, file:
            triggers = file.execute("SELECT name, sql FROM sqlite_master WHERE type = 'trigger' AND tbl_name = 'TimeRecord'").fetchall()
            for name, _ in triggers:  # else each row would be told to the trail
                file.execute(f"DROP TRIGGER {name}")
            file.execute(OLDER)
            for _, text in triggers:
                file.execute(text)
        with contextlib.closing(sqlite3.connect(few)) as file:
            file.execute("VACUUM")
    return few


def few_on_server(server):
    if "bench_few" not in sql(server, "postgres", "SELECT datname FROM pg_database"):
        sql(server, "postgres", "CREATE DATABASE bench_few TEMPLATE bench_1m")
        sql(server, "bench_few", "SET session_replication_role = replica", OLDER)
        sql(server, "bench_few", "VACUUM FULL")
        sql(server, "bench_few", "ANALYZE")


def addresses(data, server):
    """By place and size, the small ones first."""
    few_in_file(data)
    yield "file", {size: path for size in SIZES if os.path.exists(path := os.path.abspath(os.path.join(data, size + ".trail.mdb")))}
    if server:
        few_on_server(server)
        there = sql(server, "postgres", "SELECT datname FROM pg_database")
        yield "server", {size: f"postgresql:///bench_{size}?host={server}&user=postgres" for size in SIZES if "bench_" + size in there}


def program_folder(data, place, size, address):
    folder = os.path.join(data, f"growth-{place}-{size}")
    for name in ("system", "reports", "backups"):
        os.makedirs(os.path.join(folder, name), exist_ok=True)
    with open(os.path.join(folder, "system", "ptk_11.cfg"), "w", encoding="utf-8", newline="\r\n") as file:
        file.write(f"[PTK]\nDatabasePath={address}\nShowLoginHelp=True\n")
    with open(os.path.join(folder, "backups", TODAYS_BACKUP), "w", encoding="utf-8"):
        pass  # so that no login makes one
    return folder


def console(command, *arguments):
    def milliseconds(build, folder):
        start = time.perf_counter()
        ended = subprocess.run([os.path.join(build, "ptk-console"), "--program-folder", folder, command, *arguments, *WEEK], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        if ended.returncode not in DONE:
            raise SystemExit(f"{command} in {folder} ended with {ended.returncode}")
        return (time.perf_counter() - start) * 1e3

    return milliseconds


def window(mode):
    def milliseconds(build, folder):
        command = [os.path.join(build, "bench", "ui", "ptk_bench_program"), mode, folder]
        output = subprocess.run(command, capture_output=True, text=True, check=True, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}).stdout
        return int(output.split()[0]) / 1e3

    return milliseconds


WORK = (
    ("time-card", console("time-card", "--employee", "First0 Last0"), RUNS),
    ("report timecard", console("report", "timecard", "--employee", "First0 Last0"), RUNS),
    ("overview", console("overview"), RUNS),
    ("window: login to the painted main window", window("main"), WINDOW_RUNS),
    ("window: Generate Timecard", window("generate"), WINDOW_RUNS),
)


def medians(work, runs, build, folders):
    """One a folder, which take turns; what the first run alone does is left out."""
    for folder in folders:
        work(build, folder)
    return [statistics.median(column) for column in zip(*([work(build, folder) for folder in folders] for _ in range(runs)))]


def main(build, data, server=None):
    figures = Figures("10,000", "ms")
    for place, by_size in addresses(data, server):
        folders = [program_folder(data, place, size, address) for size, address in by_size.items()]
        for name, work, runs in WORK:
            base, *larger = medians(work, runs, build, folders)
            for size, taken in zip(list(by_size)[1:], larger):
                figures.add(f"{place}, {SIZES[size]} records: {name}", base, taken, LIMIT)
    return figures.keep()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
