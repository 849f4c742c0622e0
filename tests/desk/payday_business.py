"""A business of 40 people on the day after a pay period, with about 20 mistakes of all kinds in it: what payday.py is driven on."""
import datetime
import json
import pathlib
import sqlite3
import subprocess
import time

PEOPLE = 40
FIRST = 40  # the number of the first employee of a new database
DAYS = 15
CLERK = ("Eve", "Ray", "pay")  # who does the payday

CONFIGURATION = "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=False\r\n"


def moment(day, hour, minute=0):
    return f"{day:%Y-%m-%d} {hour:02}:{minute:02}:00"


class Business:
    """The program folder, its database and the pay period; people are numbered 0 to 39."""

    def __init__(self, folder, console):
        self.folder = pathlib.Path(folder)
        self.console = console
        today = datetime.date.today()
        self.first = today - datetime.timedelta(days=DAYS)
        self.last = today - datetime.timedelta(days=1)
        for name in ("system", "reports", "documentation"):
            (self.folder / name).mkdir(parents=True, exist_ok=True)
        (self.folder / "system/ptk_11.cfg").write_bytes(CONFIGURATION.encode())
        self.run("create-database")
        self.database = sqlite3.connect(self.folder / "system/ptk_11.mdb")

    def run(self, *arguments, statuses=(0,)):
        done = subprocess.run([self.console, "--program-folder", self.folder, *arguments], capture_output=True, text=True, check=False)
        if done.returncode not in statuses:
            raise RuntimeError(f"{arguments}: {done.returncode} {done.stderr}")
        return done.stdout

    def day(self, number):
        """Of the period, from 0."""
        return self.first + datetime.timedelta(days=number)

    def employ(self):
        for i in range(PEOPLE):
            first, last, password = CLERK if i == PEOPLE - 1 else (f"Pat{i:02}", f"Worker{i:02}", "")
            self.database.execute(
                "INSERT INTO Employee (EmployeeNumber, SSNumber, FirstName, LastName, PayRate, OvertimePayRate, Active, AutoDeduct, AutoDeductLunchLength,"
                " AutoDeductBreakLength, HireDate, ReleaseDate, DateOfBirth, Password) VALUES (?, ?, ?, ?, 10, 15, 1, 0, 30, 15,"
                " '1899-12-30 00:00:00', '1899-12-30 00:00:00', '1899-12-30 00:00:00', ?)",
                (i + 1, f"{i:03}", first, last, password),
            )

    def shift(self, person, day, start, end):
        """Hours, or hour and minute; the end may be a whole moment, empty for none."""
        begins = moment(day, *start)
        ends = end if isinstance(end, str) else moment(day, *end)
        self.database.execute(
            "INSERT INTO TimeRecord (EmployeeID, ShiftDate, StartTime, EndTime) VALUES (?, ?, ?, ?)",
            (FIRST + person, moment(day, 0), begins, ends or "1899-12-30 00:00:00"),
        )

    def work(self):
        """Everybody from Monday to Friday, 8:00 to 16:30, in this period and in the one before."""
        for person in range(PEOPLE):
            for number in range(-DAYS, DAYS):
                if self.day(number).weekday() < 5:
                    self.shift(person, self.day(number), (8,), (16, 30))

    def change(self, person, number, columns, *values):
        """Of the shift of that working day, counted from 0 within the period."""
        day = [self.day(i) for i in range(DAYS) if self.day(i).weekday() < 5][number]
        self.database.execute(
            f"UPDATE TimeRecord SET {columns} WHERE EmployeeID = ? AND StartTime LIKE ?", (*values, FIRST + person, f"{day:%Y-%m-%d}%")
        )
        return day

    def pay(self, person, first, last):
        self.database.commit()
        name = self.database.execute("SELECT FirstName || ' ' || LastName FROM Employee WHERE EmployeeID = ?", (FIRST + person,)).fetchone()[0]
        self.run("payday", "close", "--from", f"{first:%m/%d/%Y}", "--to", f"{last:%m/%d/%Y}", "--employee", name)

    def plant(self):
        """One person each, from the first on; what each has is the answer."""
        day_after = datetime.timedelta(days=1)
        for person, number in ((0, 2), (1, 4), (2, 6)):
            self.change(person, number, "EndTime = '1899-12-30 00:00:00'")  # forgot to clock out
        for person, number in ((3, 3), (4, 7)):
            day = self.change(person, number, "EndTime = NULL")
            self.change(person, number, "StartTime = ?, EndTime = ?", moment(day, 22), moment(day, 6))  # a night, the end on the same day
        day = self.change(5, 1, "EndTime = StartTime")  # pressed twice
        day = self.change(6, 2, "EndTime = NULL")
        self.change(6, 2, "EndTime = ?", moment(day + day_after, 7, 45))  # next morning's clock-in became the end
        day = self.change(7, 3, "EndTime = EndTime")
        self.shift(7, day, (9,), (12,))  # by hand, once more
        day = self.change(8, 5, "EndTime = EndTime")
        self.shift(8, day, (16,), (18,))  # began before the other one ended
        day = self.change(9, 5, "EndTime = EndTime")
        self.shift(9, day, (8,), "")  # pressed twice
        night = self.first - day_after
        self.shift(10, night, (22,), moment(self.first, 4))  # over the beginning of the period
        self.shift(11, self.last, (22,), moment(self.last + day_after, 4))  # over its end
        self.shift(12, self.last + 20 * day_after, (8,), "")  # the terminal's calendar
        day = self.change(13, 4, "EndTime = EndTime")
        self.database.execute("UPDATE Employee SET AutoDeduct = 1 WHERE EmployeeID = ?", (FIRST + 13,))
        self.change(13, 4, "EndTime = ?", moment(day, 8, 20))  # the deduction takes more than the day has
        self.database.execute("UPDATE Employee SET PayRate = 0 WHERE EmployeeID = ?", (FIRST + 14,))  # no rate
        day = self.change(15, 6, "EndTime = EndTime")
        self.change(15, 6, "StartTime = ?, EndTime = ?", moment(day, 0), moment(day, 13))
        self.shift(15, day, (13,), moment(day + day_after, 1))  # 25 hours in a day
        self.unreadable_day = self.change(16, 8, "EndTime = '5:30 PM'")  # another program's
        self.database.execute("UPDATE Employee SET HireDate = ? WHERE EmployeeID = ?", (moment(self.day(1), 0), FIRST + 17))  # worked before
        self.database.execute("UPDATE Employee SET Active = 0 WHERE EmployeeID = ?", (FIRST + 18,))  # left, in no list
        self.database.execute("DELETE FROM TimeRecord WHERE EmployeeID = ? AND StartTime >= ?", (FIRST + 19, moment(self.first, 0)))  # no shift

    def paid_before(self):
        """The period before is paid; one person's up to three days before its end, another's with four days of this one; and one is paid already."""
        before = (self.day(-DAYS), self.day(-1))
        for person in range(PEOPLE):
            self.pay(person, before[0], before[1] - datetime.timedelta(days=3) if person == 20 else before[1])
        self.pay(21, self.first, self.day(3))
        self.pay(22, self.first, self.last)
        self.change(22, 1, "EndTime = REPLACE(EndTime, '16:30', '17:30')")  # changed since

    def make(self):
        self.employ()
        self.work()
        self.paid_before()
        self.plant()
        self.database.commit()

    def overview(self):
        days = ("--from", f"{self.first:%m/%d/%Y}", "--to", f"{self.last:%m/%d/%Y}")
        return json.loads(self.run("overview", *days, "--all", "--format", "json", statuses=(0, 3)))

    def problems(self):
        return self.overview()["totals"]["problems"]

    def notices(self):
        return self.overview()["totals"]["notices"]

    def with_problems(self):
        """In the order in which the payday overview lists them: most problems first, then most notices, then as in every list."""
        employees = [employee for employee in self.overview()["employees"] if employee["problems"]]
        return [employee["id"] - FIRST for employee in sorted(employees, key=lambda one: (-one["problems"], -one["notices"]))]

    def reports(self, pattern):
        return list((self.folder / "reports").glob(pattern))

    def fake_printer(self):
        """A folder with programs that take what is printed instead of the system's."""
        folder = self.folder / "printer"
        folder.mkdir()
        for name, text in (("lp", f"#!/bin/sh\ncat > /dev/null\necho printed >> {folder}/pages\n"), ("lpstat", "#!/bin/sh\necho scheduler is running\n")):
            (folder / name).write_text(text)
            (folder / name).chmod(0o755)
        return folder

    def printed(self):
        pages = self.folder / "printer/pages"
        return len(pages.read_text().splitlines()) if pages.exists() else 0

    @staticmethod
    def until(true, what):
        end = time.monotonic() + 60
        while not true():
            if time.monotonic() > end:
                raise RuntimeError(f"no {what}")
            time.sleep(0.2)
