"""The start of the program, beside one empty window, and the size of what is installed."""

import shutil
import statistics
import subprocess
import time
from pathlib import Path

from surroundings import output_of
from table import Row, compared

ROUNDS = 25
PACKAGES = Path("build/package")


def one_start(command, environment):
    """Milliseconds from just before the process is made to the painted window, and MiB at most."""
    before = time.monotonic_ns()
    words = output_of(command, environment).split()
    painted = int(words[words.index("painted") + 1])
    return (painted - before) / 1e6, int(words[words.index("VmHWM:") + 1]) / 1024


def starts(commands, environment):
    """The medians of time and memory of each program; they take turns."""
    found = [[] for _ in commands]
    for _ in range(ROUNDS):
        for command, results in zip(commands, found):
            results.append(one_start(command, environment))
    return [[statistics.median(column) for column in zip(*results)] for results in found]


def stripped_size(program, work):
    copy = work / program.name
    shutil.copy(program, copy)
    subprocess.run(["strip", copy], check=True)
    return copy.stat().st_size / 1024


def package_rows():
    """Of the package, where one was made."""
    for package in sorted(PACKAGES.glob("keplin_*.deb")):
        installed = output_of(["dpkg-deb", "-f", package, "Installed-Size"]).strip()
        return [Row("Size of the package",
                    f"{package.stat().st_size / 1024:,.0f} KiB", f"installed: {installed} KiB")]
    return []


def measure(programs, work, environment):
    window = programs / "keplin-bench-empty-window"
    ours, empty, worded = starts([[programs / "keplin-bench-start"], [window],
                                  [window, "Getting started"]], environment)
    figures = ("Start to the first painted page", "ms"), ("Memory at most until then", "MiB")
    rows = []
    for (figure, unit), our, bare, wordy in zip(figures, ours, empty, worded):
        rows += [compared(figure, our, bare, unit, "one empty window", 1.25),
                 compared(figure, our, wordy, unit, "one window with two words")]
    for name in ("keplin", "keplin-demo"):
        size = stripped_size(programs / name, work)
        rows.append(Row(f"Size of {name}, stripped", f"{size:,.0f} KiB"))
    return rows + package_rows(), {}
