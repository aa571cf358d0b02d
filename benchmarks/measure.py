"""Measures, prints one table, and writes docs/figures.md when everything was measured.

measure.py PROGRAMS [run|loading|start|logic]...   PROGRAMS: the folder of the built programs
"""

import datetime
import sys
import tempfile
from pathlib import Path

import line
import loading
import logic
from report import REPORT, keep_here
import start
import surroundings
import table

SUBJECTS = {"run": line.measure, "loading": loading.measure, "start": start.measure,
            "logic": logic.measure}
EXPLANATION = Path(__file__).with_name("explanation.md")


def measure(programs, subjects):
    rows, notes = [], {}
    with tempfile.TemporaryDirectory() as work, surroundings.display() as environment:
        for subject in subjects:
            print(f"measuring: {subject}", file=sys.stderr)
            more_rows, more_notes = SUBJECTS[subject](programs, Path(work), environment)
            rows += more_rows
            notes |= more_notes
    return rows, notes


def report(rows, notes, machine):
    today = datetime.date.today().isoformat()
    parts = ["# Figures\n", f"Measured by `./bench` on {today}: {machine}.\n",
             table.as_markdown(rows), EXPLANATION.read_text()]
    for title, text in notes.items():
        parts += [f"## {title}\n", text]
    return "\n".join(parts).rstrip() + "\n"


def main(programs, *wanted):
    subjects = wanted or tuple(SUBJECTS)
    unknown = [subject for subject in subjects if subject not in SUBJECTS]
    if unknown:
        sys.exit(f"no such measurement: {unknown[0]}; there are: {', '.join(SUBJECTS)}")
    machine = surroundings.machine()
    rows, notes = measure(Path(programs).resolve(), subjects)
    print(table.as_markdown(rows))
    if wanted:
        for title, text in notes.items():
            print(f"{title}\n\n{text}")
    else:
        keep_here(report(rows, notes, machine))
        print(f"written: {REPORT}")


main(*sys.argv[1:])
