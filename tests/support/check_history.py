"""check_history.py PTK_CONSOLE SOURCES: what the program prints of its edit trail keeps to docs/history.schema.json and is the same as CSV."""
import csv
import io
import json
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile

from check_overview import faults

CHANGES = ["INSERT INTO TimeRecord (EmployeeID, StartTime) VALUES (40, '2003-03-05 08:00:00')", "UPDATE TimeRecord SET EndTime = X'00' WHERE TimeRecordID = 1",
           "UPDATE Employee SET PayRate = 12.300000190734863, LastName = '=1+1', Password = 'secret' WHERE EmployeeID = 40",
           "UPDATE Employee SET PayRate = 9e999, LastName = CAST(X'FF41' AS TEXT) || char(0) WHERE EmployeeID = 40", "DELETE FROM TimeRecord WHERE TimeRecordID = 2",
           "INSERT INTO _Change (ChangedAt, Action, Before, After, Reason) VALUES ('2003-03-05 08:00:00', 'import', 'no JSON', '{\"PayRate\":9e999}', 'a \"b\"')"]


def main(console, sources):
    sources = pathlib.Path(sources)
    schema = json.loads((sources / "docs/history.schema.json").read_text())
    with tempfile.TemporaryDirectory() as folder:
        (pathlib.Path(folder) / "system").mkdir()
        shutil.copy(sources / "data/ptk_11.cfg", pathlib.Path(folder) / "system")

        def run(*words):
            return subprocess.run([console, "--program-folder", folder, *words], capture_output=True, text=True, check=True).stdout

        run("create-database", "--sample")
        assert json.loads(run("history", "--format", "json")) == {"changes": []}
        assert run("history") == ""
        with sqlite3.connect(pathlib.Path(folder) / "system/ptk_11.mdb") as database:
            for change in CHANGES:
                database.execute(change)
        database.close()
        run("restore", run("backup").split(": ")[1].strip())
        history = json.loads(run("history", "--format", "json"))
        table = list(csv.DictReader(io.StringIO(run("history", "--format", "csv"))))
    found = faults(history, schema, schema)
    assert faults({"changes": [{**history["changes"][0], "action": "guess"}]}, schema, schema), "the check itself finds nothing"
    changes = history["changes"]
    if [change["id"] for change in changes] != list(range(len(CHANGES) + 1, 0, -1)):
        found.append("not every change, or not the newest first")
    if changes[0]["action"] != "restore" or changes[0]["program"] != "ptk-console" or not changes[0]["by"]:
        found.append("the restore is told wrongly")
    if changes[4]["after"] != {"LastName": "=1+1", "PayRate": 12.300000190734863, "Password": "changed"}:
        found.append(f"{changes[4]['after']} was stored otherwise")
    for change, line in zip(changes, table, strict=True):
        sides = [json.loads(line[name].removeprefix("'")) if line[name] else None for name in ("Before", "After")]
        if line["Change"] != str(change["id"]) or line["Text"].removeprefix("'") != change["text"] or sides != [change["before"], change["after"]] or \
                line["Reason"] != (change["reason"] or ""):
            found.append(f"the CSV line {line} of change {change} differs")
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
