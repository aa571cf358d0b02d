"""docs/figures.md, whose two parts are measured apart."""

from pathlib import Path

REPORT = Path("docs/figures.md")
WINDOWS = "\n## On Windows, as far as Wine shows it\n\n"


def parts():
    """What was measured here, and what of the program for Windows."""
    here, _, windows = REPORT.read_text().partition(WINDOWS)
    return here, windows


def write(here, windows):
    REPORT.write_text(here.rstrip() + "\n" + (WINDOWS + windows.rstrip() + "\n" if windows else ""))


def keep_here(text):
    write(text, parts()[1])


def keep_windows(text):
    write(parts()[0], text)
