"""check_readme.py PTK_CONSOLE SOURCES: what the README shows of the console works as it stands there, on a folder set up by its own lines."""
import pathlib
import re
import subprocess
import sys
import tempfile

DONE = (0, 3)  # 3: done, and problems were found, of which the sample has some


def lines(readme):
    """The commands of the README, without what is built or installed by them."""
    shown = [line.strip() for line in readme.read_text(encoding="utf-8").splitlines() if line.startswith("    ")]
    return [line for line in shown if re.match(r"mkdir|cp data/|build/release/ptk-console ", line)]


def main(console, sources):
    failed = []
    with tempfile.TemporaryDirectory() as folder:

        def run(line):
            line = line.replace("build/release/ptk-console", console).replace("build/program", folder).replace("DIR", folder)
            result = subprocess.run(["bash", "-c", line], cwd=sources, capture_output=True, text=True, check=False)
            if result.returncode not in DONE:
                failed.append(f"{line}: {result.returncode} {result.stderr}")

        commands = lines(pathlib.Path(sources) / "README.md")
        setting_up = [line for line in commands if "DIR" in line]
        for line in setting_up:
            run(line + " --sample" if line.endswith("create-database") else line)
        for line in commands:
            if line not in setting_up:
                run(line)
    assert len(setting_up) == 3 and len(commands) > 8, commands
    if failed:
        sys.exit("\n".join(failed))


if __name__ == "__main__":
    main(*sys.argv[1:3])
