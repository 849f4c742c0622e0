"""Many at once on one server, and then the books: run_load.py BUILD SECONDS [DESKS CONSOLES], from the project's folder.

Desks save, delete, fill and undo on the same few employees; consoles print time cards and overviews meanwhile. At the end the edit trail, done again from
its beginning, must give exactly the rows that are there, with nothing changed that an entry does not begin with, every step that a desk was told is stored
must be there, no other, and nothing may have taken longer than five seconds. Prints the times of each operation."""
import collections
import json
import pathlib
import random
import statistics
import subprocess
import sys
import tempfile
import threading
import time

CLUSTER = "tests/support/server_cluster"
LONGEST = 5.0  # seconds
TABLES = {"Employee": "EmployeeID", "TimeRecord": "TimeRecordID"}
PERIOD = ["--from", "11/01/2026", "--to", "11/14/2026"]
STAFF = ("INSERT INTO Employee (FirstName, LastName, Active, CompanyID, AutoDeduct, PayRate, OvertimePayRate, Password) "
         "SELECT 'Ann', 'Lee' || i, true, 0, false, 10, 15, '' FROM generate_series(40, 49) AS i")


class Server:
    def __init__(self, folder):
        self.folder = folder
        subprocess.run([CLUSTER, "start", folder], check=True, env={"SERVER_FSYNC": "on", "PATH": "/usr/bin:/bin"})
        self.socket = str(pathlib.Path(folder, "socket").readlink())
        self.address = f"postgresql:///load?host={self.socket}&user=postgres"
        self.ask("CREATE DATABASE load TEMPLATE template0 ENCODING 'UTF8'", "postgres")

    def ask(self, sql, database="load"):
        words = ["psql", "-X", "-h", self.socket, "-U", "postgres", "-d", database, "-At", "-v", "ON_ERROR_STOP=1", "-c", sql]
        return subprocess.run(words, check=True, capture_output=True, text=True).stdout.splitlines()

    def stop(self):
        subprocess.run([CLUSTER, "stop", self.folder], check=True)


def console(program, folder, rounds, until):
    """Runs ptk-console over and over; (operation, seconds, what became of it) each."""
    while time.monotonic() < until:
        name = f"Ann Lee{random.randrange(40, 50)}"
        words = random.choice([["time-card", "--employee", name], ["overview"]]) + PERIOD
        begun = time.monotonic()
        done = subprocess.run([program, "--program-folder", folder, *words], capture_output=True, text=True)
        seconds = time.monotonic() - begun
        fine = done.returncode in (0, 3) or "605: there are no time records" in done.stderr
        rounds.append(("console " + words[0], seconds, "done" if fine else done.stderr.strip() or f"status {done.returncode}"))


def work(server, build, folder, seconds, desks, consoles):
    """All operations, and the number of steps that the desks stored."""
    rounds, steps = [], 0
    threads = [threading.Thread(target=console, args=(f"{build}/ptk-console", folder, rounds, time.monotonic() + seconds)) for _ in range(consoles)]
    running = [subprocess.Popen([f"{build}/bench/ptk_desk", server.address, str(seed), str(seconds)], stdout=subprocess.PIPE, text=True)
               for seed in range(desks)]
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


def rows_of(server, table):
    """By key, in the trail's own form."""
    rows = {}
    for line in server.ask(f"SELECT to_json(t) FROM {table} AS t"):
        row = json.loads(line)
        rows[row[TABLES[table].lower()]] = {name: int(value) if isinstance(value, bool) else value for name, value in row.items()}
    return rows


def small(entry):
    return {name.lower(): value for name, value in json.loads(entry).items()} if entry else None


def replay(server, begun):
    """The rows as the trail has them, and how many entries begin with what was not there."""
    rows, strange = {table: {} for table in TABLES}, 0
    entries = server.ask("SELECT json_build_array(TableName, RowID, Before::text, After::text) FROM _Change ORDER BY ChangeID")
    for table, key, before, after in map(json.loads, entries):
        before, after = small(before), small(after)
        present = rows[table].get(key)
        strange += (before is None) != (present is None)
        strange += any((present or {}).get(name) != value for name, value in (before or {}).items())
        if after is None:
            rows[table].pop(key, None)
        else:
            rows[table][key] = {**(present or {}), **after}
    return rows, strange, len(entries) - begun


def moment(value):
    return value.replace("T", " ") if isinstance(value, str) else value


def same(told, present):
    return told.keys() == present.keys() and all(
        {n: v for n, v in row.items() if n != "password"} == {n: moment(v) for n, v in present[key].items() if n != "password"} for key, row in told.items())


def report(rounds):
    times, became = collections.defaultdict(list), collections.Counter()
    for name, seconds, what in rounds:
        times[name].append(seconds)
        became[name, what] += 1
    print(f"{'operation':<20}{'times':>8}{'median ms':>11}{'99 % ms':>10}{'most ms':>10}")
    for name, seconds in sorted(times.items()):
        ordered = sorted(seconds)
        print(f"{name:<20}{len(ordered):>8}{statistics.median(ordered) * 1e3:>11.1f}{ordered[len(ordered) * 99 // 100] * 1e3:>10.1f}{ordered[-1] * 1e3:>10.1f}")
    for (name, what), count in sorted(became.items()):
        if what != "done":
            print(f"{name}: {count} x {what}")
    return max(seconds for _, seconds, _ in rounds), [what for _, _, what in rounds if what not in ("done", "refused")]


def main(build, seconds, desks=14, consoles=6):
    with tempfile.TemporaryDirectory() as folder:
        server = Server(folder)
        try:
            pathlib.Path(folder, "system").mkdir()
            pathlib.Path(folder, "system/ptk_11.cfg").write_text(f"[PTK]\r\nDatabasePath={server.address}\r\n", encoding="utf-8")
            subprocess.run([f"{build}/ptk-console", "--program-folder", folder, "create-database"], check=True, stdout=subprocess.DEVNULL)
            server.ask(STAFF)
            begun = int(server.ask("SELECT COUNT(*) FROM _Change")[0])
            rounds, steps = work(server, build, folder, int(seconds), int(desks), int(consoles))
            longest, failures = report(rounds)
            told, strange, entries = replay(server, begun)
            stored = int(server.ask("SELECT COUNT(DISTINCT Step) FROM _Change WHERE Program = 'load'")[0])
            present = {table: rows_of(server, table) for table in TABLES}
        finally:
            server.stop()
    present["Employee"].pop(39)  # the administrator was there before the trail
    faults = [f"the trail gives other rows of {table} than are there" for table in TABLES if not same(told[table], present[table])]
    faults += [f"{strange} entries begin with what was not there"] * (strange > 0) + [f"{steps} steps stored, {stored} in the trail"] * (steps != stored)
    faults += [f"one operation took {longest:.1f} s"] * (longest > LONGEST) + [f"{len(failures)} operations failed"] * bool(failures)
    print(f"{entries} entries in {stored} steps, {len(present['TimeRecord'])} records: " + ("; ".join(faults) or "all as it should be"))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
