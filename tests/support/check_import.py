#!/usr/bin/env python3
"""check_import.py PTK-CONSOLE SOURCES: imports the older database files in the folder that PTK_OLDER_FILES names and compares every row and
value with the JSON beside each. Skipped (77) without that folder, since such files are not part of the sources."""
import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile

ELSEWHERE = dict(os.environ, TZ="America/New_York", LC_ALL="de_DE.UTF-8")
UNSET = "1899-12-30 00:00:00"


def program_folder(sources, parent):
    folder = pathlib.Path(tempfile.mkdtemp(dir=parent))
    for name in ("system", "reports"):
        (folder / name).mkdir()
    shutil.copy(sources / "data/ptk_11.cfg", folder / "system")
    return folder


def rows(database, table, key):
    return {row[key]: dict(row) for row in database.execute(f"SELECT * FROM {table}")}


def expect_same(what, expected, stored):
    assert expected == stored, f"{what}: {expected!r} is stored as {stored!r}"


def compare(content, path):
    database = sqlite3.connect(path)
    database.row_factory = sqlite3.Row
    address = content["tables"]["web_address_column"]
    columns = content["time_records"]["columns"]
    records = [dict(zip(columns, row)) for row in content["time_records"]["rows"]]
    for record in records:
        record.update({name: record[name] or UNSET for name in ("StartTime", "EndTime")})
    for table, key, expected in (("Employee", "EmployeeID", content["employees"]), ("Company", "CompanyID", content["companies"]),
                                 ("TimeRecord", "TimeRecordID", records), ("_System", "program", content["system"])):
        stored = rows(database, table, key)
        expect_same(table, len(expected), len(stored))
        for row in expected:
            for name, value in row.items():
                expect_same(f"{table} {row[key]} {name}", value, stored[row[key]]["URL" if name == address else name])


def check(console, sources, file, parent):
    content = json.loads(file.with_suffix(".mdb.json").read_text(encoding="utf-8"))
    folder = program_folder(sources, parent)
    stamps = os.stat(file)
    status = subprocess.run([console, "--program-folder", folder, "import", file], env=ELSEWHERE, stdout=subprocess.DEVNULL, check=False).returncode
    expect_same("time stamps", (stamps.st_atime_ns, stamps.st_mtime_ns), (os.stat(file).st_atime_ns, os.stat(file).st_mtime_ns))
    if content["outcome"] == "import":
        expect_same("status", 0, status)
        compare(content, folder / "system/ptk_11.mdb")
    else:
        expect_same("status", 1, status)
        assert not (folder / "system/ptk_11.mdb").exists() and not list((folder / "reports").iterdir())


def main(console, sources):
    folder = os.environ.get("PTK_OLDER_FILES")
    if not folder:
        return 77
    files = sorted(pathlib.Path(folder).glob("*.mdb"))
    with tempfile.TemporaryDirectory() as parent:
        for file in files:
            check(console, pathlib.Path(sources), file, parent)
    return 0 if files else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
