"""One table of figures, each beside its floor or its peer."""

from dataclasses import dataclass


@dataclass
class Row:
    figure: str
    measured: str
    beside: str = ""
    ratio: str = ""
    goal: str = ""
    met: str = ""


HEAD = Row("Figure", "Measured", "Beside", "Ratio", "Goal", "Met")


def compared(figure, value, peer, unit, beside, limit=None):
    """A row whose ratio is that of two numbers of one unit; `limit` is the most it may be."""
    ratio = value / peer
    row = Row(figure, f"{number(value)} {unit}", f"{beside}: {number(peer)} {unit}", number(ratio))
    if limit is not None:
        row.goal = f"at most {limit}"
        row.met = "yes" if ratio <= limit else "no"
    return row


def number(value):
    """With as many digits as tell something."""
    if value == 0:
        return "0"
    if abs(value) >= 1000:
        return f"{value:,.0f}"
    return f"{value:.{3 if abs(value) < 10 else 2 if abs(value) < 100 else 1}f}"


def as_markdown(rows):
    cells = [[row.figure, row.measured, row.beside, row.ratio, row.goal, row.met]
             for row in [HEAD, *rows]]
    widths = [max(len(cell) for cell in column) for column in zip(*cells)]
    lines = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |"
             for line in cells]
    lines.insert(1, "|" + "|".join("-" * (width + 2) for width in widths) + "|")
    return "\n".join(lines) + "\n"
