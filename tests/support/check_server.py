#!/usr/bin/env python3
"""check_server.py PTK_CONSOLE: cards, reports, the overview and the history of a business copied to the tests' server are the file's, byte for byte."""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

DAYS = ["--from", "11/1/2026", "--to", "11/14/2026"]
REPORTS = ["timecard", "review", "ytd", "employees", "phonebook"]
MADE = re.compile(rb'"made":"[^"]*"|, made [^\r\n]*|^Printed .*$', re.MULTILINE)


def run(console, folder, *arguments):
    done = subprocess.run([console, "--program-folder", folder, *arguments], capture_output=True, check=False)
    return done.returncode, done.stdout, done.stderr.replace(str(folder).encode(), b"")


def commands():
    yield ["time-card", "--employee", "Thomas Brandt", *DAYS]
    yield ["time-card", "--employee", "Nobody", *DAYS]
    for profile in ["plain", "kinds", "semicolons"]:
        yield ["report", "review", "--profile", profile, *DAYS]
    yield ["person", "Ann Lee", "--format", "json"]
    yield ["kept", "--years", "0"]
    for form in ["text", "csv", "json"]:
        yield ["overview", *DAYS, "--format", form]
        yield ["history", "--format", form]
        for report in REPORTS:
            yield ["report", report, "--format", form, *(DAYS if report in REPORTS[:3] else [])]


def program_folder(parent, name, database):
    folder = parent / name
    (folder / "system").mkdir(parents=True)
    (folder / "reports").mkdir()
    (folder / "system/ptk_11.cfg").write_bytes(f"[PTK]\r\nDatabasePath={database}\r\n".encode())
    return folder


def compare(console, parent, address):
    in_file = program_folder(parent, "file", "<app.path>\\system\\ptk_11.mdb")
    on_server = program_folder(parent, "server", address)
    for done in [run(console, in_file, "create-database", "--sample", "--today", "11/20/2026"), run(console, in_file, "copy-database", "--to", address)]:
        if done[0] != 0:
            return [f"not prepared: {done}"]
    found = []
    for command in commands():
        expected, got = (run(console, folder, *command) for folder in (in_file, on_server))
        if [MADE.sub(b"", part) if isinstance(part, bytes) else part for part in expected] != [
            MADE.sub(b"", part) if isinstance(part, bytes) else part for part in got
        ]:
            found.append(f"{' '.join(command)}: {expected} is {got}")
        if command[0] != "history" and command[2] != "Nobody" and not expected[1]:
            found.append(f"{' '.join(command)}: answers nothing: {expected}")
    return found


def main(console):
    socket = os.path.realpath(os.environ["PTK_TEST_SERVER"])
    name = f"ptk_same_{os.getpid()}"
    psql = ["psql", "--host", socket, "--username", "postgres", "--quiet", "--command"]
    subprocess.run([*psql, f"CREATE DATABASE {name} TEMPLATE template0 ENCODING 'UTF8'"], check=True)
    try:
        with tempfile.TemporaryDirectory() as parent:
            found = compare(console, pathlib.Path(parent), f"postgresql:///{name}?host={socket}&user=postgres")
    finally:
        subprocess.run([*psql, f"DROP DATABASE {name} WITH (FORCE)"], check=True)
    print("\n".join(found) or "the same on both")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
