"""run_ui.py BUILD DATA: starts the program and the bare windows in turn, several times each, and prints the medians and their ratios."""
import glob
import os
import shutil
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), ".."))
from figures import Figures  # noqa: E402

RUNS = 15
FRAME = 16.0  # ms between two pictures of a screen
SEEN = 100.0  # ms that nobody takes for a wait


def program_folder(data, name):
    """A program folder on a copy of the file data/name.mdb."""
    folder = os.path.join(data, "ui-" + name)
    os.makedirs(os.path.join(folder, "system"), exist_ok=True)
    with open(os.path.join(folder, "system", "ptk_11.cfg"), "w", encoding="utf-8", newline="\r\n") as file:
        file.write("[PTK]\nDatabasePath=<app.path>\\system\\ptk_11.mdb\nShowLoginHelp=True\n")
    shutil.copyfile(os.path.join(data, name + ".trail.mdb"), os.path.join(folder, "system", "ptk_11.mdb"))
    return folder


def run(command):
    """(milliseconds of the whole process, milliseconds it measured itself, its memory in KiB)"""
    start = time.perf_counter()
    output = subprocess.run(command, capture_output=True, text=True, check=True, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}).stdout
    own, memory = output.split()
    return (time.perf_counter() - start) * 1e3, int(own) / 1e3, int(memory)


def medians(*commands):
    """The medians of each command's figures, the commands run in turn."""
    results = [[] for _ in commands]
    for _ in range(RUNS):
        for command, result in zip(commands, results):
            result.append(run(command))
    return [[statistics.median(column) for column in zip(*result)] for result in results]


def main(build, data):
    program, bare = os.path.join(build, "ptk_bench_program"), os.path.join(build, "ptk_bench_bare")
    few, many, history = (program_folder(data, name) for name in ("10k", "staff", "1m"))
    figures = Figures("bare", "ms")

    login_few, login_many, login_bare = medians([program, "login", few], [program, "login", many], [bare, "login", few])
    figures.add("window: start to the painted login", login_bare[0], login_few[0], 1.5)
    figures.add("window: the same with 10,000 employees", login_bare[0], login_many[0], 1.5)

    shown, shown_bare = medians([program, "main", many], [bare, "main", many])
    figures.add("window: login to the painted main window, 10,000 employees", shown_bare[1], shown[1], 1.5)
    figures.add("window: its memory", shown_bare[2] / 1024, shown[2] / 1024, 1.05, unit="MiB")

    review = max(glob.glob(os.path.join(data, "reports", "salary_review_*.txt")), key=os.path.getsize)
    viewer, viewer_bare = medians([program, "viewer", review], [bare, "viewer", review])
    figures.add("window: review of 1,000 employees shown", viewer_bare[1], viewer[1], 2.0)

    generated, saved = medians([program, "generate", history], [program, "save", many])
    figures.add("window: Generate Timecard among a million records, of 16 ms", FRAME, generated[1], 1.0)
    figures.add("window: one of 10,000 employees saved, of 100 ms", SEEN, saved[1], 1.0)
    return figures.keep()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:3]))
