#!/usr/bin/env python3
"""check_layers.py SRC: holds every #include line below SRC to the table of layers; lists what breaks it and fails then."""
import pathlib
import re
import sys

# Each layer from the ground up and what it may include besides itself.
CORE = ["platform", "shell", "store", "model", "reports", "office"]
ALLOWED = {layer: set(CORE[: index + 1]) for index, layer in enumerate(CORE)}
ALLOWED["jetreader"] = {"jetreader"}  # a program of its own, which knows nothing of the product
ALLOWED["startup"] = {*CORE, "startup"}
ALLOWED["console"] = {*CORE, "console"}
ALLOWED["ui"] = {*CORE, "startup", "ui"}
ALLOWED["pages"] = {"reports", "pages"}
ALLOWED["app"] = {*CORE, "startup", "ui", "app"}

QT_LAYERS = {"ui", "app"}
SQLITE_FOLDER = "store/sqlite/"
POSTGRES_FOLDER = "store/postgres/"

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
QT_HEADER = re.compile(r"^(Q[A-Z]\w*|Qt\w+/.*|q[a-z]+\.h)$")
SQLITE_HEADER = re.compile(r"^(sqlite3\w*\.h|SQLiteCpp/.*)$")
POSTGRES_HEADER = re.compile(r"^(libpq-fe\.h|libpq/.*)$")
GENERATED_HEADER = re.compile(r"^(ui_\w+\.h|\w+\.moc)$")


def layer_of(path):
    """The layer of a path below SRC: its first folder, but the start-up is a layer of its own above the reports."""
    return "startup" if path.startswith("startup/") else path.split("/")[0]


def fault(path, quote, header):
    """Why the file at `path` may not include `header`, or None."""
    layer = layer_of(path)
    if QT_HEADER.match(header):
        return None if layer in QT_LAYERS else "Qt belongs to " + " and ".join(sorted(QT_LAYERS))
    if SQLITE_HEADER.match(header):
        return None if path.startswith(SQLITE_FOLDER) else "SQLite belongs to " + SQLITE_FOLDER
    if POSTGRES_HEADER.match(header):
        return None if path.startswith(POSTGRES_FOLDER) else "the server's library belongs to " + POSTGRES_FOLDER
    if quote == "<" or (layer in QT_LAYERS and GENERATED_HEADER.match(header)):
        return None
    if "/" not in header:
        return "own headers are named from src/ on"
    if layer_of(header) not in ALLOWED[layer]:
        return f"{layer} must not know {layer_of(header)}"
    return None


def faults(path, text):
    for quote, header in INCLUDE.findall(text):
        reason = fault(path, quote, header)
        if reason:
            yield f'{path}: includes "{header}": {reason}'


def main(src):
    files = sorted(f for f in pathlib.Path(src).rglob("*") if f.suffix in {".h", ".cpp"})
    found = [line for f in files for line in faults(f.relative_to(src).as_posix(), f.read_text(encoding="utf-8"))]
    print("\n".join(found) or f"{len(files)} files keep to their layers")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
