"""The start of the program, beside one empty window, and the size of what is installed."""

import re
import shutil
import statistics
import subprocess
import sys
import time
from pathlib import Path

from surroundings import output_of
from table import Row, compared

ROUNDS = 25
PACKAGES = Path("build/package")

# What the start consists of, by the functions that do it; none of them calls another.
STEPS = {
    "ld.so, before main": r"_dl_start_user|_dl_start",
    "QApplication::QApplication: the display, the style": r"QApplication::QApplication\(",
    "QFontDatabase::families: the system's fonts": r"QFontDatabase::families\(",
    "keplin::TextFit::Choose: laying out each text": r"keplin::TextFit::Choose\(",
    "keplin::qt::LabelWidget::paintEvent: the texts of the page": r"LabelWidget::paintEvent\(",
    "QPushButton::paintEvent": r"QPushButton::paintEvent\(",
    "keplin::qt::FrameWidget::paintEvent": r"FrameWidget::paintEvent\(",
    "keplin::qt::ProgramIcon": r"keplin::qt::ProgramIcon\(",
    "keplin::qt::PictureWidget::Render": r"PictureWidget::Render\(",
    "QXcbWindow::setWindowIcon": r":QXcbWindow::setWindowIcon\(",
}
# Begins a second later, which under valgrind is too early.
LATER = r"keplin::qt::DrawingThreads::Keep\("


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


def instructions(command, work, environment):
    """Of the whole process, and with everything that it calls by function."""
    record = work / "start.out"
    subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={record}", *command],
                   env=environment, check=True, capture_output=True)
    listing = output_of(["callgrind_annotate", "--inclusive=yes", "--threshold=100", record])
    counts = [(int(count.replace(",", "")), name) for count, name in
              re.findall(r"^ *([\d,]+) \( *[\d.]+%\) +(\S.*)$", listing, re.MULTILINE)]

    def of(pattern, absent=None):
        found = [count for count, name in counts
                 if re.search(pattern, name) and not name.startswith("=>")] or [absent]
        if found == [None]:
            sys.exit(f"no function matches {pattern}")
        return max(found)
    return of("PROGRAM TOTALS") - of(LATER, absent=0), of


def profile_text(our, empty, worded, work, environment):
    totals = [instructions(command, work, environment) for command in (our, empty, worded)]
    (total, of), *others = totals
    lines = [f"{total:,} instructions, {total / others[0][0]:.2f} times those of the empty window "
             f"and {total / others[1][0]:.2f} times those of the one with two words:\n"]
    steps = {step: of(pattern) for step, pattern in STEPS.items()}
    steps["all else"] = total - sum(steps.values())
    lines += [f"- {count / total:.1%} {step}"
              for step, count in sorted(steps.items(), key=lambda item: -item[1])]
    return "\n".join(lines) + "\n"


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
    commands = [[programs / "keplin-bench-start"], [window], [window, "Getting started"]]
    our, bare, wordy = starts(commands, environment)
    rows = []
    for figure, unit, limits, of_our, of_bare, of_wordy in zip(
            ("Start to the first painted page", "Memory at most until then"), ("ms", "MiB"),
            ((1.25, 1.1), (1.2, None)), our, bare, wordy):
        rows += [compared(figure, of_our, of_bare, unit, "one empty window", limits[0]),
                 compared(figure, of_our, of_wordy, unit, "one window with two words", limits[1])]
    for name in ("keplin", "keplin-demo"):
        size = stripped_size(programs / name, work)
        rows.append(Row(f"Size of {name}, stripped", f"{size:,.0f} KiB"))
    return rows + package_rows(), {
        "Where the start's instructions go": profile_text(*commands, work, environment)}
