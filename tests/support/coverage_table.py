"""coverage_table.py EXPORT UNCOVERED LAYER...: a row of lines and branches for each layer of what llvm-cov exported; each branch that was never taken goes
into the file UNCOVERED."""
import collections
import json
import sys


def branches_of(file):
    """(line, column, way): how often it was taken, over all instances of a template."""
    taken = collections.Counter()
    for line, column, _, _, true, false, *_ in file["branches"]:
        taken[line, column, "true"] += true
        taken[line, column, "false"] += false
    return taken


def main(export, uncovered, layers):
    with open(export, encoding="utf-8") as file:
        files = json.load(file)["data"][0]["files"]
    with open(uncovered, "w", encoding="utf-8") as missing:
        for layer in layers:
            chosen = [file for file in files if f"/src/{layer}/" in file["filename"]]
            lines = sum(file["summary"]["lines"]["count"] for file in chosen)
            ran = sum(file["summary"]["lines"]["covered"] for file in chosen)
            branches = {(file["filename"], *place): count for file in chosen for place, count in branches_of(file).items()}
            for name, line, column, way in sorted(place for place, count in branches.items() if count == 0):
                print(f"{name[name.index('/src/') + 1:]}:{line}:{column}: never {way}", file=missing)
            taken = sum(count > 0 for count in branches.values())
            print(f"{layer:8} lines {ran / lines:6.1%} of {lines:5}   branches {taken / len(branches):6.1%} of {len(branches):5}")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
