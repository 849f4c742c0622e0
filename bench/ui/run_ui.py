"""run_ui.py BUILD DATA: starts the program and the bare windows in turn, several times each, and prints the medians and their ratios."""
import glob
import os
import shutil
import statistics
import subprocess
import sys
import time

RUNS = 15


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


def row(work, program, bare, allowed, unit="ms"):
    print(f"{work:<58}{bare:>10.1f}{program:>12.1f} {unit:<4}{program / bare:>7.2f}{allowed:>9}")


def main(build, data):
    program, bare = os.path.join(build, "ptk_bench_program"), os.path.join(build, "ptk_bench_bare")
    few, many, history = (program_folder(data, name) for name in ("10k", "staff", "1m"))
    print(f"{'window':<58}{'bare':>10}{'program':>12}     {'ratio':>7}{'at most':>9}")

    login_few, login_many, login_bare = medians([program, "login", few], [program, "login", many], [bare, "login", few])
    row("start to the painted login", login_few[0], login_bare[0], 1.5)
    row("the same with 10,000 employees", login_many[0], login_bare[0], 2.5)

    shown, shown_bare = medians([program, "main", many], [bare, "main", many])
    row("login to the painted main window, 10,000 employees", shown[1], shown_bare[1], 1.5)
    row("its memory", shown[2] / 1024, shown_bare[2] / 1024, 1.5, "MiB")

    review = max(glob.glob(os.path.join(data, "reports", "salary_review_*.txt")), key=os.path.getsize)
    viewer, viewer_bare = medians([program, "viewer", review], [bare, "viewer", review])
    row("review of 1,000 employees shown", viewer[1], viewer_bare[1], 2.0)

    generated, saved = medians([program, "generate", history], [program, "save", many])
    print(f"{'Generate Timecard among a million records':<58}{'':>10}{generated[1]:>12.1f} ms  {'':>7}{'16 ms':>9}")
    print(f"{'one of 10,000 employees saved, lists refilled':<58}{'':>10}{saved[1]:>12.1f} ms  {'':>7}{'100 ms':>9}")


if __name__ == "__main__":
    main(*sys.argv[1:3])
