#!/usr/bin/env python3
"""payday.py PTK_ADMIN PTK_CONSOLE [--pictures FOLDER] [--spoken FILE]: a whole payday by keys, counted.

Makes the business of payday_business.py, starts ptk-admin on an X server of its own (Xvfb, openbox) and presses what a clerk would press, by xdotool:
login, overview, mending, closing, printed cards, the accountant's review. Every key, with what is held down with it, every typed character and every click
counts one. The result is looked up in the database afterwards, with the console; the status is 1 where something of it is not as it should be, or where
more was pressed than is promised: 120 in all, 60 without what was done to type a time. With --spoken, FILE is what was pressed and what the desktop's screen
reader said to it.
"""
import argparse
import contextlib
import datetime
import os
import pathlib
import subprocess
import sys
import tempfile
import time

from payday_business import CLERK, PEOPLE, Business
from screen_reader import ScreenReader

MOST_IN_ALL = 120
MOST_WITHOUT_TIMES = 60
PATIENCE = 60  # seconds for a window to come up

MAIN = "Quillmarsh"
OVERVIEW = "Payday Overview"
EDITOR = "Edit Time Record"


class Desk:
    """The screen, and the person at the keyboard."""

    def __init__(self, display, pictures):
        self.environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb"}
        self.pictures = pictures
        self.pressed = 0
        self.for_times = 0
        self.typing_time = False
        self.log = []

    def run(self, *arguments):
        return subprocess.run(arguments, env=self.environment, capture_output=True, text=True, check=False).stdout.strip()

    def count(self, number, what):
        self.pressed += number
        self.for_times += number if self.typing_time else 0
        self.tell(f"{self.pressed:4} {what}")

    def tell(self, text):
        self.log.append((datetime.datetime.now().strftime("%H:%M:%S.%f"), text))

    def key(self, *keys):
        for key in keys:
            self.run("xdotool", "key", "--clearmodifiers", key)
            self.count(1, key)
            time.sleep(0.5)

    def type(self, text):
        self.run("xdotool", "type", "--delay", "40", text)
        self.count(len(text), f'"{text}"')
        time.sleep(0.2)

    def active(self):
        return self.run("xdotool", "getactivewindow", "getwindowname")

    def wait(self, title):
        end = time.monotonic() + PATIENCE
        while title not in self.active():
            if time.monotonic() > end:
                self.picture("stuck")
                raise RuntimeError(f"no {title}; in front is {self.active()!r}")
            time.sleep(0.1)
        time.sleep(1.2)  # the program learns a little later that its window is in front

    def note(self, what):
        self.tell(f"     -- {what}")
        self.picture(what)

    def picture(self, what):
        if self.pictures:
            pathlib.Path(self.pictures).mkdir(parents=True, exist_ok=True)
            self.run("import", "-window", "root", f"{self.pictures}/{self.pressed:03}-{what.replace(' ', '-')}.png")


class Typed:
    """What is pressed inside is pressed to type a time."""

    def __init__(self, desk):
        self.desk = desk

    def __enter__(self):
        self.desk.typing_time = True

    def __exit__(self, *_):
        self.desk.typing_time = False


def log_in(desk):
    desk.wait("Login")
    desk.type(" ".join(CLERK[:2]))
    desk.key("Tab")
    desk.type(CLERK[2])
    desk.key("Return")
    desk.wait(MAIN)


def mend_several(desk):
    desk.key("F9")
    desk.wait(OVERVIEW)
    time.sleep(1.5)
    desk.key("alt+Left")  # somebody's card of this period is paid already
    time.sleep(1.5)
    desk.note("overview")
    desk.key("alt+k")  # takes in who left
    time.sleep(1.5)
    desk.key("alt+m")
    desk.wait("Mend Several")
    desk.note("mend several")
    desk.key("Return", "Return")  # it asks once for a reason, as one of them is paid already
    desk.wait(OVERVIEW)
    time.sleep(2)
    desk.note("mended")


def delete(desk):
    """One that a remedy of the first key deletes; the next person's card comes by itself."""
    desk.key("alt+1")
    desk.wait("Delete Time Record?")
    desk.key("alt+y")
    desk.wait(MAIN)


def end_at(desk, text, day=None):
    with Typed(desk):
        desk.key("Return")
        desk.wait(EDITOR)
        if day:
            desk.key("alt+e")
            desk.type(day)
        desk.key("alt+m")
        desk.type(text)
        desk.key("Return")
        desk.wait(MAIN)


def next_person(desk):
    desk.key("F3")
    time.sleep(0.5)


def unreadable(desk, business):
    """The terminal wrote a text for the end; both its day and its time are typed."""
    end_at(desk, "1630", f"{business.unreadable_day:%m/%d}")
    next_person(desk)


def rate(desk, _):
    desk.key("alt+1")
    desk.type("10")
    desk.key("Return")
    next_person(desk)


def future(desk, _):
    desk.key("Delete")
    desk.wait("Delete Time Record?")
    desk.key("alt+y")
    desk.wait(MAIN)
    next_person(desk)


def day_of_20_minutes(desk, _):
    end_at(desk, "1630")
    next_person(desk)


def day_of_25_hours(desk, _):
    end_at(desk, "8")
    next_person(desk)


# How each of those is mended whom Mend Several leaves, by who it is; of the others a person decides that they are paid as they are.
WAYS = {
    7: lambda desk, _: delete(desk),
    9: lambda desk, _: delete(desk),
    12: future,
    13: day_of_20_minutes,
    14: rate,
    15: day_of_25_hours,
    16: unreadable,
}


def mend_rest(desk, business):
    people = business.with_problems()
    desk.key("F3", "Return")
    desk.wait(MAIN)
    for person in people:
        time.sleep(1.2)
        desk.note(f"person {person}")
        WAYS.get(person, lambda desk, _: next_person(desk))(desk, business)


def close_payday(desk):
    desk.key("F9")
    desk.wait(OVERVIEW)
    time.sleep(2)
    desk.note("before closing")
    desk.key("ctrl+a")
    time.sleep(0.5)
    desk.key("alt+y")
    time.sleep(0.5)
    desk.note("asked")
    desk.key("alt+y")
    time.sleep(2)
    desk.note("closed")
    desk.key("Escape")
    desk.wait(MAIN)


def print_cards(desk, business):
    desk.key("ctrl+Tab")
    desk.key("alt+s", "alt+i")
    time.sleep(1)
    desk.key("alt+a", "Return")
    desk.wait("Report Generation Error")
    desk.key("Return")  # of the one who has no shift
    business.until(lambda: len(business.reports("*time_card*")) >= PEOPLE, "time cards")
    time.sleep(2)
    desk.note("time cards")
    desk.key("ctrl+shift+p")
    business.until(lambda: business.printed() >= PEOPLE, "printed cards")


def print_review(desk, business):
    desk.key("ctrl+shift+w")
    desk.wait(MAIN)
    desk.key("alt+p", "Down", "alt+s", "alt+i")
    time.sleep(1)
    desk.key("alt+a", "Return")
    desk.wait("Report Generation Error")
    desk.key("Return")  # of the one who has no shift
    business.until(lambda: business.reports("*review*"), "the review")
    time.sleep(1)
    desk.note("review")
    desk.key("ctrl+shift+p")
    business.until(lambda: business.printed() >= PEOPLE + 1, "the printed review")


STEPS = (
    ("login", lambda desk, _: log_in(desk)),
    ("overview and Mend Several", lambda desk, _: mend_several(desk)),
    ("the rest, one by one", mend_rest),
    ("closing", lambda desk, _: close_payday(desk)),
    ("printed cards", print_cards),
    ("review", print_review),
)


def faults(business):
    """What is not as it should be afterwards."""
    found = []
    for employee in business.overview()["employees"]:
        kinds = {finding["kind"] for finding in employee["findings"] if finding["severity"] == "problem"}
        if employee["paid"] is None:
            found.append(f"{employee['name']} is not paid")
        if kinds - {"twice", "between"}:
            found.append(f"{employee['name']} still has {', '.join(sorted(kinds))}")
    return found


@contextlib.contextmanager
def screen():
    """An X server of its own with a window manager; its display."""
    told, tells = os.pipe()
    with subprocess.Popen(["Xvfb", "-displayfd", str(tells), "-screen", "0", "1024x700x24"], pass_fds=[tells], stderr=subprocess.DEVNULL) as server:
        display = f":{os.read(told, 16).decode().strip()}"
        manager = subprocess.Popen(["openbox"], env={**os.environ, "DISPLAY": display}, stderr=subprocess.DEVNULL)
        time.sleep(1)
        try:
            yield display
        finally:
            manager.terminate()
            server.terminate()


@contextlib.contextmanager
def reading(desk, wanted):
    """The screen reader of the desk, where one is wanted."""
    if not wanted:
        yield
        return
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        reader = ScreenReader(desk.environment, folder)
        desk.environment = reader.environment
        try:
            yield
        finally:
            desk.log = sorted(desk.log + [(moment, f"       {text}") for moment, text in reader.stop()], key=lambda entry: entry[0])


def drive(options, desk, folder):
    business = Business(folder, options.console)
    business.make()
    print(f"{PEOPLE} people, {business.problems()} problems and {business.notices()} notices, period {business.first} to {business.last}")
    environment = {**desk.environment, "PATH": f"{business.fake_printer()}:{os.environ['PATH']}", "XDG_CONFIG_HOME": f"{folder}/config"}
    with subprocess.Popen([options.admin, "--program-folder", folder], env=environment) as program:
        try:
            for name, step in STEPS:
                before = desk.pressed
                step(desk, business)
                print(f"{desk.pressed - before:4}  {name}")
        finally:
            program.terminate()
    return faults(business)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("admin")
    parser.add_argument("console")
    parser.add_argument("--pictures")
    parser.add_argument("--spoken")
    parser.add_argument("--log", action="store_true", help="every key that was pressed")
    options = parser.parse_args()
    with screen() as display, tempfile.TemporaryDirectory() as folder:
        desk = Desk(display, options.pictures)
        try:
            with reading(desk, options.spoken):
                found = drive(options, desk, folder)
        finally:
            log = "".join(f"{text}\n" for _, text in desk.log)
            if options.log:
                print(log)
            if options.spoken:
                pathlib.Path(options.spoken).write_text(log)
    without = desk.pressed - desk.for_times
    print(f"{desk.pressed:4}  keys, characters and clicks in all, at most {MOST_IN_ALL}")
    print(f"{without:4}  of them without what was done to type a time, at most {MOST_WITHOUT_TIMES}")
    print("\n".join(found) if found else "everybody is paid, and no mistake is left that a record could mend")
    return 1 if found or desk.pressed > MOST_IN_ALL or without > MOST_WITHOUT_TIMES else 0


if __name__ == "__main__":
    sys.exit(main())
