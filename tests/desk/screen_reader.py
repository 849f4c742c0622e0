"""What the desktop's screen reader (orca) says of the windows on one display: nothing is heard, its own log is read."""
import os
import pathlib
import re
import subprocess
import time

SPOKEN = re.compile(r"^([0-9:.]+) - SPEECH OUTPUT: '(.*)' ?\{", re.MULTILINE)


class ScreenReader:
    """Runs on a session bus of its own; `environment` is for the programs that are to be read."""

    def __init__(self, environment, folder):
        self.folder = pathlib.Path(folder)
        self.environment = {**environment, "HOME": str(self.folder), "XDG_RUNTIME_DIR": str(self.folder)}
        self.bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], env=self.environment,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus.stdout.readline().strip()
        self.log = self.folder / "orca.log"
        self.programs = [self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")]
        time.sleep(1)
        self.programs.append(self.start("orca", f"--debug-file={self.log}"))
        time.sleep(8)  # it writes its log in pieces: nothing there says when it is ready

    def start(self, *command):
        return subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def stop(self):
        """Ends it; the moments of the day and what was said at each."""
        for program in reversed(self.programs):
            program.terminate()
            program.wait(timeout=30)
        self.bus.terminate()
        said = SPOKEN.findall(self.log.read_text(encoding="utf-8", errors="replace"))
        return [(moment, text.strip()) for moment, text in said if text.strip()]
