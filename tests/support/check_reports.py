"""check_reports.py PTK_CONSOLE SOURCES: the reports as JSON keep to docs/report.schema.json and are the same as CSV and as the files that -o names;
the accountant's tables add up to the review."""
import csv
import io
import json
import os
import pathlib
import pty
import shutil
import subprocess
import sys
import tempfile
from decimal import Decimal

from check_overview import faults

DAYS = ["--from", "1/1/1950", "--to", "12/31/2099"]
REPORTS = {"timecard": [*DAYS, "--employee", "Ann Lee", "--employee", "Yuki Tanaka"], "review": DAYS, "ytd": [*DAYS, "--employee", "Ann Lee"],
           "employees": [], "phonebook": []}
SECRETS = ["900-12-0101", "Password"]  # Ann Lee's


def member(column):
    """The JSON member of a CSV column."""
    words = column.replace(" (h:mm)", " AsTime").split(" ")
    return words[0].lower() + "".join(words[1:])


def shown(value):
    return "" if value is None else str(value).lower() if isinstance(value, (bool, int)) else value


def hundredths(text):
    """Of a figure, or of hours and minutes; nothing counts 0."""
    if ":" in text:
        hours, minutes = text.split(":")
        return Decimal(hours) * 60 + Decimal(minutes)
    return Decimal(text.replace(",", ".") or 0)


def profile_faults(run):
    """What the accountant's tables add up to, against the review."""
    review = list(csv.DictReader(io.StringIO(run("--format", "csv").decode("utf-8-sig"), newline="")))
    wanted = {column: sum(hundredths(row[column]) for row in review) for column in ("Regular Hours", "Overtime Hours", "Break Hours", "Gross Pay")}
    for profile, separator in (("plain", ","), ("semicolons", ";")):
        rows = list(csv.DictReader(io.StringIO(run("--profile", profile).decode("utf-8-sig"), newline=""), delimiter=separator))
        yield from (f"{profile}: {column} is not the review's" for column in wanted if sum(hundredths(row[column]) for row in rows) != wanted[column])
        if sum(hundredths(row["Regular Pay"]) + hundredths(row["Overtime Pay"]) for row in rows) != wanted["Gross Pay"]:
            yield f"{profile}: the pay is not the review's"
    rows = list(csv.DictReader(io.StringIO(run("--profile", "kinds").decode(), newline="")))
    for kind in ("Regular", "Overtime"):
        if sum(hundredths(row["Hours"]) for row in rows if row["Kind"] == kind) != wanted[kind + " Hours"]:
            yield f"kinds: the {kind} hours are not the review's"
    if sum(hundredths(row["Pay"]) for row in rows) != wanted["Gross Pay"] or len(rows) != 2 * len(review):
        yield "kinds: the pay is not the review's"


def on_a_terminal(command):
    """The exit status and what a terminal shows."""
    leader, follower = pty.openpty()
    with subprocess.Popen(command, stdout=follower, stderr=subprocess.DEVNULL) as ran:
        os.close(follower)
        text = b""
        try:
            while part := os.read(leader, 65536):
                text += part
        except OSError:
            pass  # the terminal's end
    os.close(leader)
    return ran.returncode, text


def main(console, sources):
    sources = pathlib.Path(sources)
    schema = json.loads((sources / "docs/report.schema.json").read_text())
    assert faults({"made": "today", "reports": [{}]}, schema, schema), "the check itself finds nothing"
    found = []
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for sub in ("system", "reports"):
            (folder / sub).mkdir()
        shutil.copy(sources / "data/ptk_11.cfg", folder / "system")
        program = [console, "--program-folder", name]
        subprocess.run([*program, "create-database", "--sample"], check=True, capture_output=True)
        for kind, words in REPORTS.items():
            def run(*more):
                return subprocess.run([*program, "report", kind, *words, *more], capture_output=True, check=True).stdout

            run("--format", "csv", "-o", folder / "file.csv")
            table = (folder / "file.csv").read_bytes()
            if run("--format", "csv") != table:
                found.append(f"{kind}: the file is not what is printed")
            rows = list(csv.DictReader(io.StringIO(table.decode("utf-8-sig"), newline="")))
            data = json.loads(run("--format", "json"))
            found += [f"{kind}: {fault}" for fault in faults(data, schema, schema)]
            if [{member(column): value for column, value in row.items()} for row in rows] != [
                    {column: shown(value) for column, value in row.items()} for report in data["reports"] for row in report["rows"]]:
                found.append(f"{kind}: CSV and JSON differ")
            if not rows or any((secret in str(rows)) != (kind == "employees" and secret == SECRETS[0]) for secret in SECRETS):
                found.append(f"{kind}: holds what it should not, or nothing")
            if not run("--format", "pdf").startswith(b"%PDF-"):
                found.append(f"{kind}: no PDF file")
            if kind == "review":
                found += profile_faults(run)
        status, text = on_a_terminal([*program, "report", "phonebook", "--format", "csv"])
        if status != 0 or not text.startswith(b"Last Name,"):
            found.append(f"a terminal shows {text[:20]}")
        if on_a_terminal([*program, "report", "phonebook", "--format", "pdf"]) != (2, b""):
            found.append("a PDF file goes to a terminal")
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
