"""Many at once on one database, and then the books: run_load.py BUILD SECONDS [options], from the project's folder.

Desks save, delete, fill and undo on the same few employees, with a pause between two turns as people make one; consoles print time cards and overviews
meanwhile. At the end the edit trail, done again from its beginning, must give exactly the rows that are there, with nothing changed that an entry does not
begin with, and every step that a desk was told is stored must be there. Undisturbed there is no other step, no answer takes longer than a second, and 99 of
100 saves take at most 30 ms; with --kill, where the server ends as in a crash every so many seconds, a step whose answer was lost may be there or not.
Prints the times of each operation."""
import argparse
import collections
import json
import pathlib
import random
import sqlite3
import statistics
import subprocess
import sys
import tempfile
import threading
import time

CLUSTER = "tests/support/server_cluster"
LONGEST = 1.0  # seconds
LONGEST_SAVE = 0.03  # seconds, of 99 in 100
SAVES = ("save", "delete", "auto-fill", "employee")
TABLES = {"Employee": "EmployeeID", "TimeRecord": "TimeRecordID"}
PERIOD = ["--from", "11/01/2026", "--to", "11/14/2026"]
STAFF = "INSERT INTO Employee (FirstName, LastName, Active, CompanyID, AutoDeduct, PayRate, OvertimePayRate, Password) VALUES " + ", ".join(
    f"('Ann', 'Lee{number}', '1', 0, '0', 10, 15, '')" for number in range(40, 50))
TRAIL = "SELECT TableName, RowID, Before, After FROM _Change ORDER BY ChangeID"
STORED = "SELECT COUNT(DISTINCT Step) FROM _Change WHERE Program = 'load'"


class Server:
    def __init__(self, folder):
        self.folder = folder
        self.cluster("start", {"SERVER_FSYNC": "on", "PATH": "/usr/bin:/bin"})
        self.socket = str(pathlib.Path(folder, "socket").readlink())
        self.address = f"postgresql:///load?host={self.socket}&user=postgres"
        self.ask("CREATE DATABASE load TEMPLATE template0 ENCODING 'UTF8'", "postgres")

    def cluster(self, step, environment=None):
        subprocess.run([CLUSTER, step, self.folder], check=True, env=environment)

    def ask(self, sql, database="load"):
        words = ["psql", "-X", "-h", self.socket, "-U", "postgres", "-d", database, "-At", "-v", "ON_ERROR_STOP=1", "-c", sql]
        return subprocess.run(words, check=True, capture_output=True, text=True).stdout.splitlines()

    def rows(self, sql):
        """Names in small letters, as the server has them."""
        return [json.loads(line) for line in self.ask(f"SELECT row_to_json(t) FROM ({sql}) AS t")]

    def kill_each(self, seconds, until):
        while time.monotonic() + seconds < until:
            time.sleep(seconds)
            self.cluster("kill")
            self.cluster("restart")

    def stop(self):
        self.cluster("stop")


class File:
    def __init__(self, folder):
        self.address = str(pathlib.Path(folder, "system/ptk_11.mdb"))

    def ask(self, sql):
        with sqlite3.connect(self.address) as connection:
            connection.execute(sql)

    def rows(self, sql):
        with sqlite3.connect(self.address) as connection:
            found = connection.execute(sql)
            names = [column[0].lower() for column in found.description]
            return [dict(zip(names, row)) for row in found]

    def stop(self):
        pass


def console(program, folder, pause, rounds, until):
    """Runs ptk-console over and over; (operation, seconds, what became of it) each."""
    while time.monotonic() < until:
        time.sleep(random.random() * 2 * pause / 1e3)
        name = f"Ann Lee{random.randrange(40, 50)}"
        words = random.choice([["time-card", "--employee", name], ["overview"]]) + PERIOD
        begun = time.monotonic()
        done = subprocess.run([program, "--program-folder", folder, *words], capture_output=True, text=True)
        seconds = time.monotonic() - begun
        fine = done.returncode in (0, 3) or "605: there are no time records" in done.stderr
        rounds.append(("console " + words[0], seconds, "done" if fine else done.stderr.strip() or f"status {done.returncode}"))


def work(database, folder, options):
    """All operations, and the number of steps that the desks stored."""
    rounds, steps = [], 0
    until = time.monotonic() + options.seconds
    program = f"{options.build}/ptk-console"
    threads = [threading.Thread(target=console, args=(program, folder, options.pause, rounds, until)) for _ in range(options.consoles)]
    if options.kill:
        threads.append(threading.Thread(target=database.kill_each, args=(options.kill, until)))
    words = [str(options.seconds), str(options.pause)]
    running = [subprocess.Popen([f"{options.build}/bench/ptk_desk", database.address, str(seed), *words], stdout=subprocess.PIPE, text=True)
               for seed in range(options.desks)]
    for thread in threads:
        thread.start()
    for desk in running:
        output = desk.communicate()[0].splitlines()
        assert desk.returncode == 0, f"a desk ended with {desk.returncode}"
        steps += int(output.pop().removeprefix("steps "))
        rounds += [(name, int(micros) / 1e6, became) for name, micros, became in (line.split(" ", 2) for line in output)]
    for thread in threads:
        thread.join()
    return rounds, steps


def plain(value):
    """As both the trail and the tables of either engine are compared."""
    return int(value) if isinstance(value, bool) else value.replace("T", " ") if isinstance(value, str) else value


def rows_of(database, table):
    """By key; without the password, of which the trail tells only that it changed."""
    rows = {}
    for row in database.rows(f"SELECT * FROM {table}"):
        rows[row[TABLES[table].lower()]] = {name: plain(value) for name, value in row.items() if name != "password"}
    return rows


def small(entry):
    entry = json.loads(entry) if isinstance(entry, str) else entry
    return {name.lower(): plain(value) for name, value in entry.items() if name.lower() != "password"} if entry else None


def replay(database):
    """The rows as the trail has them, and how many entries begin with what was not there."""
    rows, strange = {table: {} for table in TABLES}, 0
    for entry in database.rows(TRAIL):
        table, key, before, after = entry["tablename"], entry["rowid"], small(entry["before"]), small(entry["after"])
        present = rows[table].get(key)
        strange += (before is None) != (present is None)
        strange += any((present or {}).get(name) != value for name, value in (before or {}).items())
        if after is None:
            rows[table].pop(key, None)
        else:
            rows[table][key] = {**(present or {}), **after}
    return rows, strange


def report(rounds):
    """Seconds by operation, and what became of those that failed."""
    times, became = collections.defaultdict(list), collections.Counter()
    for name, seconds, what in rounds:
        times[name].append(seconds)
        became[name, what] += 1
    print(f"{'operation':<20}{'times':>8}{'median ms':>11}{'99 % ms':>10}{'most ms':>10}")
    for name, seconds in sorted(times.items()):
        seconds.sort()
        print(f"{name:<20}{len(seconds):>8}{statistics.median(seconds) * 1e3:>11.1f}{seconds[len(seconds) * 99 // 100] * 1e3:>10.1f}{seconds[-1] * 1e3:>10.1f}")
    for (name, what), count in sorted(became.items()):
        if what != "done":
            print(f"{name}: {count} x {what if len(what) <= 100 else what[:97] + '...'}")
    return times, [what for _, _, what in rounds if what not in ("done", "refused")]


def slowness(times):
    longest = max(seconds[-1] for seconds in times.values())
    saves = sorted(second for name in SAVES for second in times[name])
    slow = saves[len(saves) * 99 // 100]
    return ([f"one operation took {longest:.1f} s"] * (longest > LONGEST)
            + [f"one save in a hundred took {slow * 1e3:.0f} ms or more"] * (slow > LONGEST_SAVE))


def judge(database, options, rounds, steps):
    times, failures = report(rounds)
    told, strange = replay(database)
    stored = next(iter(database.rows(STORED)[0].values()))
    present = {table: rows_of(database, table) for table in TABLES}
    present["Employee"].pop(39)  # the administrator was there before the trail
    faults = [f"the trail gives other rows of {table} than are there" for table in TABLES if told[table] != present[table]]
    faults += [f"{strange} entries begin with what was not there"] * (strange > 0)
    lost = len(failures) if options.kill else 0
    faults += [f"{steps} steps stored, {stored} in the trail"] * (not steps <= stored <= steps + lost)
    if not options.kill:
        faults += slowness(times) + [f"{len(failures)} operations failed"] * bool(failures)
    print(f"{stored} steps in the trail, {len(present['TimeRecord'])} records: " + ("; ".join(faults) or "all as it should be"))
    return 1 if faults else 0


def main():
    parser = argparse.ArgumentParser(usage="run_load.py BUILD SECONDS [options]")
    parser.add_argument("build")
    parser.add_argument("seconds", type=int)
    parser.add_argument("--file", action="store_true", help="a file instead of a server")
    parser.add_argument("--desks", type=int, default=14)
    parser.add_argument("--consoles", type=int, default=6)
    parser.add_argument("--pause", type=int, default=500, help="milliseconds between two turns of a desk, in the mean")
    parser.add_argument("--kill", type=int, help="seconds between two crashes of the server")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        pathlib.Path(folder, "system").mkdir()
        database = File(folder) if options.file else Server(folder)
        try:
            pathlib.Path(folder, "system/ptk_11.cfg").write_text(f"[PTK]\r\nDatabasePath={database.address}\r\n", encoding="utf-8")
            subprocess.run([f"{options.build}/ptk-console", "--program-folder", folder, "create-database"], check=True, stdout=subprocess.DEVNULL)
            database.ask(STAFF)
            return judge(database, options, *work(database, folder, options))
        finally:
            database.stop()


if __name__ == "__main__":
    sys.exit(main())
