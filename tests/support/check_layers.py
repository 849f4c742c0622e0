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
# Within a layer, its folders by subject, floor by floor: each may include those of the floors before its own ("" is the layer's own folder). Nothing runs
# in circles so, and two rooms of one floor do not know each other.
FLOORS = {
    "platform": [[""], ["text", "files"], ["system"]],
    "shell": [[""]],
    "store": [["engine"], ["postgres/line"], ["sqlite", "postgres", "rows"], ["whole"], ["backup"], [""], ["trail", "import"]],
    "model": [[""], ["payday"], ["check"], ["remedy"]],
    "reports": [["forms"], [""]],
    "office": [["card", "import", "reports", "sheet"], ["history", "safety"], ["overview"], ["payday", "records", "business", "person", "profile"]],
    "jetreader": [[""]],
    "startup": [[""]],
    "console": [[""], ["commands"], ["main"]],
    "ui": [["widgets"], ["boxes", "work"], ["page"], ["login", "payday", "mend", "profile", "editors"], ["reports"],
           ["timecards", "people", "overview", "history", "safety", "sheet", "help"], ["frame"]],
    "pages": [[""]],
    "app": [[""]],
}

ENGINES = {"sqlite", "postgres"}  # with the rooms within them, neither of which knows the other
SQLITE_FOLDER = "store/sqlite/"
POSTGRES_FOLDER = "store/postgres/"

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
QT_HEADER = re.compile(r"^(Q[A-Z]\w*|Qt\w+/.*|q[a-z]+\.h)$")
SQLITE_HEADER = re.compile(r"^(sqlite3\w*\.h|SQLiteCpp/.*)$")
POSTGRES_HEADER = re.compile(r"^(libpq-fe\.h|libpq/.*)$")
GENERATED_HEADER = re.compile(r"^(ui_\w+\.h|\w+\.moc)$")


def layer_of(path):
    """The layer of a path below SRC: its first folder."""
    return path.split("/")[0]


def room_of(path):
    """The folder by subject of a path below SRC, "" where it lies in the layer's own folder."""
    return "/".join(path.split("/")[1:-1])


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
    if layer_of(header) == layer:
        return fault_within(layer, room_of(path), room_of(header))
    return None


def fault_within(layer, room, other):
    """Why one room of a layer may not include from another one, or None."""
    floors = {name: number for number, floor in enumerate(FLOORS[layer]) for name in floor}
    if room not in floors or other not in floors:
        return f"{layer} has no room {room if room not in floors else other}"
    are_both_engines = {room.split("/")[0], other.split("/")[0]} == ENGINES
    if room != other and (floors[other] >= floors[room] or are_both_engines):
        return f"{layer}/{room} must not know {layer}/{other}"
    return None


def faults(path, text):
    for quote, header in INCLUDE.findall(text):
        reason = fault(path, quote, header)
        if reason:
            yield f'{path}: includes "{header}": {reason}'


def doubled(files):
    """Headers of one name: an #include should lead to one place in a reader's mind, too."""
    seen = {}
    for f in files:
        if f.suffix == ".h" and seen.setdefault(f.name, f) is not f:
            yield f"{f}: {seen[f.name]} has the same name"


def main(src):
    files = sorted(f for f in pathlib.Path(src).rglob("*") if f.suffix in {".h", ".cpp"})
    found = [line for f in files for line in faults(f.relative_to(src).as_posix(), f.read_text(encoding="utf-8"))]
    found += doubled(files)
    print("\n".join(found) or f"{len(files)} files keep to their layers")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
