"""The program for Windows, under Wine: its start, its size, and an update on COM2.

windows.py PROGRAMS   PROGRAMS: the folder of the programs built for Windows
Prints one table and puts it at the end of docs/figures.md. tests/windows/wine has its surroundings.
"""

import contextlib
import datetime
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from line import PAUSE, Exchange, Update, losses_text, processor_row
from report import keep_windows
from surroundings import machine, output_of
from table import Row, as_markdown, compared
import update_files

ROUNDS = 25
EXPLANATION = Path(__file__).with_name("explanation_windows.md")
LINES = 512
SIZE = 16


def one_start(program):
    """Milliseconds from just before the process is made to the painted window, and MiB at most."""
    before = time.monotonic_ns()
    with subprocess.Popen(["wine", program], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          text=True) as process:
        words = process.stdout.readline().split()
        painted = time.monotonic_ns()
    return (painted - before) / 1e6, int(words[1]) / 1024


def start_rows(programs):
    """Medians; the two take turns."""
    names = ("keplin-bench-start.exe", "keplin-bench-empty-window.exe")
    found = [[one_start(programs / name) for name in names] for _ in range(ROUNDS)]
    our, empty = ([statistics.median(column) for column in zip(*results)]
                  for results in zip(*found))
    figures = (("Start to the first painted page", "ms"), ("Memory at most until then", "MiB"))
    return [compared(figure, of_our, of_empty, unit, "one empty window", 1.25)
            for (figure, unit), of_our, of_empty in zip(figures, our, empty)]


def size_row(program):
    size = program.stat().st_size
    return Row(f"Size of {program.name}", f"{size:,} bytes", goal="at most 1,500,000",
               met="yes" if size <= 1_500_000 else "no")


def server_time():
    """Seconds of processor time that Wine's server has taken so far."""
    prefix = os.stat(os.environ["WINEPREFIX"])
    folder = f"server-{prefix.st_dev:x}-{prefix.st_ino:x}"
    for process in Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if os.readlink(process / "cwd").endswith(folder):
                fields = (process / "stat").read_text().rsplit(")", 1)[1].split()
                return sum(map(int, fields[11:13])) / os.sysconf("SC_CLK_TCK")
    raise RuntimeError("Wine's server is not there")


def update(programs, work):
    """One update on COM2, and the server's processor time for it, in milliseconds."""
    lines = update_files.memory_file(LINES * SIZE, SIZE)
    file = update_files.write(work / "update.hex", lines)
    served = server_time()
    output = output_of(["wine", programs / "keplin-bench-update.exe", file])
    served = 1000 * (server_time() - served)
    numbers = [(words[0], [int(word) / 1e6 for word in words[1:]])
               for words in map(str.split, output.splitlines())]
    facts = dict(numbers)
    moments = [moments for name, moments in numbers if name == "exchange"][-len(lines):]
    exchanges = [Exchange(*seen, 0, PAUSE) for seen in moments]
    took = facts["run"][1] - facts["run"][0]
    return Update(lines, took, facts["processor"][0], exchanges), served, facts["look"][0]


def pause_row(exchanges):
    pauses = sorted(exchange.slept - exchange.written for exchange in exchanges)
    middle, late = statistics.median(pauses), pauses[len(pauses) * 99 // 100]
    return Row("A pause of 50 ms, median", f"{middle:.3f} ms",
               f"first: {pauses[0]:.3f} ms, 99 of 100 below: {late:.3f} ms", f"{middle / PAUSE:.4f}",
               "50 to 51 ms", "yes" if PAUSE <= pauses[0] and late <= PAUSE + 1 else "no")


def line_rows(run, look):
    """Of the lines of full size: from one record to the next."""
    step = PAUSE + sum(run.losses().values())
    reply = len(run.lines[0]) + 3
    rest = step - reply * look
    rows = [(f"A line of {SIZE} bytes, mean of {LINES}", step),
            (f"The same without a look for events for each of its {reply} bytes", rest)]
    return [Row(figure, f"{value:.3f} ms", f"its pause: {PAUSE} ms", f"{value / PAUSE:.4f}",
                "at most 1.01", "yes" if value <= 1.01 * PAUSE else "no") for figure, value in rows]


def update_rows(programs, work):
    run, served, look = update(programs, work)
    rows = [*line_rows(run, look),
            Row("A look for events that finds none, under Wine", f"{1000 * look:.1f} us"),
            pause_row(run.exchanges), processor_row(run, SIZE),
            Row("Processor time of Wine's server meanwhile", f"{served / 1000:.2f} s",
                f"one core: {run.took / 1000:.1f} s", f"{served / run.took:.2%}")]
    return rows, losses_text({(SIZE, "window drawn"): run})


def main(programs):
    stands_on = f"{machine()}; {output_of(['wine', '--version']).split()[0]}"
    with tempfile.TemporaryDirectory() as work:
        update_figures, losses = update_rows(programs, Path(work))
        rows = [*start_rows(programs), size_row(programs / "keplin.exe"), *update_figures]
    print(as_markdown(rows), losses, sep="\n")
    today = datetime.date.today().isoformat()
    keep_windows(f"Measured by `./bench windows` on {today}: {stands_on}.\n\n{as_markdown(rows)}\n"
                 f"{EXPLANATION.read_text()}\n{losses}")


main(Path(sys.argv[1]).resolve())
