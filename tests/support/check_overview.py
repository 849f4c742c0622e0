"""check_overview.py PTK_CONSOLE SOURCES: what the program prints of the sample business keeps to docs/overview.schema.json and is the same as CSV."""
import csv
import io
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

TYPES = {"object": dict, "array": list, "string": str, "boolean": bool, "null": type(None), "integer": int}


def is_of(value, name):
    return isinstance(value, TYPES[name]) and (name != "integer" or not isinstance(value, bool))


def faults(value, schema, root, path="$"):
    """The part of JSON Schema that the document uses."""
    if "$ref" in schema:
        schema = root["$defs"][schema["$ref"].rsplit("/", 1)[1]]
    types = schema.get("type", [])
    if types and not any(is_of(value, name) for name in ([types] if isinstance(types, str) else types)):
        return [f"{path} is {value!r}, not {types}"]
    found = []
    if "enum" in schema and value not in schema["enum"]:
        found.append(f"{path} is {value!r}")
    if isinstance(value, str) and not re.search(schema.get("pattern", ""), value):
        found.append(f"{path} is {value!r}")
    if isinstance(value, int) and value < schema.get("minimum", value):
        found.append(f"{path} is {value}")
    if isinstance(value, list):
        for i, item in enumerate(value):
            found += faults(item, schema.get("items", {}), root, f"{path}[{i}]")
    if isinstance(value, dict):
        known = schema.get("properties", {})
        found += [f"{path} lacks {name}" for name in schema.get("required", []) if name not in value]
        if schema.get("additionalProperties", True) is False:
            found += [f"{path} has {name}" for name in value if name not in known]
        for name in value.keys() & known.keys():
            found += faults(value[name], known[name], root, f"{path}.{name}")
    return found


def main(console, sources):
    sources = pathlib.Path(sources)
    schema = json.loads((sources / "docs/overview.schema.json").read_text())
    with tempfile.TemporaryDirectory() as folder:
        (pathlib.Path(folder) / "system").mkdir()
        shutil.copy(sources / "data/ptk_11.cfg", pathlib.Path(folder) / "system")

        def run(*words, status=3):
            ran = subprocess.run([console, "--program-folder", folder, *words], capture_output=True, text=True, check=False)
            assert ran.returncode == status, (ran.returncode, ran.stderr)
            return ran.stdout

        run("create-database", "--sample", status=0)
        overview = json.loads(run("overview", "--from", "1/1/1950", "--to", "12/31/2099", "--remedies", "--format", "json"))
        table = list(csv.DictReader(io.StringIO(run("overview", "--from", "1/1/1950", "--to", "12/31/2099", "--format", "csv"))))
    found = faults(overview, schema, schema)
    assert faults({**overview, "made": "today"}, schema, schema) == ["$.made is 'today'"], "the check itself finds nothing"
    for employee in overview["employees"]:
        lines = [line for line in table if line["ID"] == str(employee["id"])]
        figures, findings = lines[0], lines[1:]
        if (figures["Gross"] or None) != employee["gross"] or figures["Problems"] != str(employee["problems"]):
            found.append(f"the CSV line of {employee['name']} differs")
        if [(line["Kind"], line["Minutes"], line["Text"]) for line in findings] != [
                (finding["kind"], str(finding["minutes"]), finding["text"]) for finding in employee["findings"]]:
            found.append(f"the CSV findings of {employee['name']} differ")
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
