"""Whole updates of the whole program through a pseudo-terminal, beside what the line allows."""

import re
import statistics
import subprocess
from dataclasses import dataclass
from typing import NamedTuple

from surroundings import without_display
from table import Row
import update_files

# What the floor follows from. All times here are in milliseconds.
BYTE = 10 / 38400 * 1000  # ten bits on the wire
REPLY_EXCESS = 4          # byte times from a record's last byte to its reply's last byte: the echo
                          # of that byte, the verdict, CR, LF; all echoes before it have passed
PAUSE = 50                # after each transmission
FIXED_PAUSES = 2000 + 4 * 800 + 2000
PINGS = 3
COMMAND_LENGTHS = [13] * 3 + [15] * 3  # calibrations and erases, in characters

MEMORY = 32 * 1024
RECORD_SIZES = (16, 255)


def wire_time(length):
    """From the first bit of a record of so many characters to the last bit of its reply."""
    return (length + REPLY_EXCESS) * BYTE


def exchange_floor(length):
    return max(PAUSE, wire_time(length))


def run_floor(lines):
    exchanges = [exchange_floor(length) for length in COMMAND_LENGTHS + [len(l) for l in lines]]
    return FIXED_PAUSES + PINGS * PAUSE + sum(exchanges)


class Exchange(NamedTuple):
    """A line of the file, sent and answered: moments that the program and the controller saw."""

    writing: float   # the record is about to be handed to the line
    written: float   # the line has taken it
    slept: float     # the pause after it is over
    answered: float  # the program has read the reply's last byte
    replied: float   # that byte had passed the wire
    floor: float     # the least that the exchange can take


# Where an exchange takes longer than its floor, as differences to the one before it.
LOST_AROUND = {
    "from one reply's end to the next record": lambda before, this: this.writing - before.answered,
    "handing the record to the line": lambda before, this: this.written - this.writing,
}
LOST_WITH_SLOW_PAUSE = LOST_AROUND | {
    "the pause wakes late": lambda before, this: this.slept - this.written - this.floor,
    "reading the reply, a yield for each byte": lambda before, this: this.answered - this.slept,
}
LOST_WITH_SLOW_WIRE = LOST_AROUND | {
    "the simulated line's own lateness":
        lambda before, this: this.replied - this.written - this.floor,
    "from the end of the reply on the wire to its last byte read":
        lambda before, this: this.answered - this.replied,
}


@dataclass
class Update:
    """One whole update."""

    lines: list
    took: float
    processor: float
    exchanges: list  # one for each line

    @property
    def floor(self):
        return run_floor(self.lines)

    def losses(self):
        """What an exchange loses by place, on average; the last two lines are shorter and left
        out."""
        slow_wire = self.exchanges[0].floor > PAUSE
        neighbours = list(zip(self.exchanges, self.exchanges[1:]))[:-2]
        return {place: statistics.fmean(lost(*pair) for pair in neighbours)
                for place, lost in (LOST_WITH_SLOW_WIRE if slow_wire
                                    else LOST_WITH_SLOW_PAUSE).items()}


class Run:
    """An update that has been started, with a simulated controller of its own."""

    def __init__(self, programs, file, environment, wrapper=()):
        self.lines = file.read_bytes().decode("ascii").split()
        self.controller = subprocess.Popen([programs / "keplin-bench-controller"], text=True,
                                           stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        device = self.controller.stdout.readline().strip()
        command = [*wrapper, programs / "keplin-bench-program", "update", file, device]
        self.program = subprocess.Popen(command, text=True, stdout=subprocess.PIPE,
                                        env=environment)

    def result(self):
        output = self.program.communicate()[0]
        replies = [int(line) / 1e6 for line in self.controller.communicate()[0].split()]
        if self.program.returncode != 0:
            raise RuntimeError("the update did not get through")
        numbers = [(words[0], [int(word) / 1e6 for word in words[1:]])
                   for words in map(str.split, output.splitlines())]
        facts = dict(numbers)
        moments = [moments for name, moments in numbers if name == "exchange"]
        # The commands before the file's lines are no part of this.
        count = len(self.lines)
        exchanges = [Exchange(*seen, reply, exchange_floor(len(line)))
                     for seen, reply, line in zip(moments[-count:], replies[-count:], self.lines)]
        return Update(self.lines, facts["run"][1] - facts["run"][0], facts["processor"][0],
                      exchanges)


def call_counts(summary):
    """The calls by name from a summary of strace."""
    rows = re.findall(r"^ *[\d.]+ +[\d.]+ +\d+ +(\d+) +(?:\d+ +)?(\w+)$", summary, re.MULTILINE)
    return {name: int(calls) for calls, name in rows if name != "total"}


def calls_per_exchange(programs, work, environment, size):
    """System calls by name: what the longer of two updates called more often, for each exchange
    that it had more."""
    counts = (20, 100)
    runs = []
    for count in counts:
        file = update_files.write(work / f"calls-{size}-{count}.HEX",
                                  update_files.memory_file(count * size, size))
        summary = file.with_suffix(".calls")
        tracer = ["strace", "-c", "-f", "-o", summary]
        runs.append((Run(programs, file, environment, tracer), summary))
    for run, _ in runs:
        run.result()
    short, long = (call_counts(summary.read_text()) for _, summary in runs)
    return {name: (long[name] - short.get(name, 0)) / (counts[1] - counts[0])
            for name in sorted(long, key=long.get, reverse=True)}


def run_row(update, size, place):
    ratio = update.took / update.floor
    limit = 1.005 if size == 16 else 1.01
    return Row(f"Update, {len(update.lines):,} lines of {size} bytes, {place}",
               f"{update.took / 1000:.2f} s", f"floor: {update.floor / 1000:.2f} s",
               f"{ratio:.4f}", f"at most {limit}", "yes" if ratio <= limit else "no")


def processor_row(update, size):
    share = update.processor / update.took
    return Row(f"Processor time of that, {size} bytes, window drawn",
               f"{update.processor / 1000:.2f} s", f"one core: {update.took / 1000:.1f} s",
               f"{share:.2%}", "under 3 %", "yes" if share < 0.03 else "no")


def calls_row(calls, lines, size):
    total = sum(calls.values())
    reply = len(lines[0]) + 3
    return Row(f"System calls for each exchange, {size} bytes", f"{total:.0f}",
               f"bytes of the reply: {reply}", f"{total / reply:.2f}")


def losses_text(updates):
    text = []
    for (size, place), update in updates.items():
        losses = {place: 1000 * lost for place, lost in update.losses().items()}
        text.append(f"An exchange of {size} bytes, {place}, takes {sum(losses.values()):.0f} us "
                    f"more than its {1000 * update.exchanges[0].floor:,.0f} us:\n")
        text += [f"- {lost:.0f} us: {place}" for place, lost in losses.items()]
        text.append("")
    return "\n".join(text)


def calls_text(calls):
    return "\n".join(
        f"- {size} bytes: " + ", ".join(f"{name} {count:.1f}" for name, count in counts.items()
                                        if count >= 0.05)
        for size, counts in calls.items()) + "\n"


def measure(programs, work, environment):
    """All updates at the same time: they wait nearly always."""
    files = {size: update_files.write(work / f"memory-{size}.HEX",
                                      update_files.memory_file(MEMORY, size))
             for size in RECORD_SIZES}
    places = {"offscreen": without_display(environment), "window drawn": environment}
    runs = {(size, place): Run(programs, files[size], places[place])
            for size in RECORD_SIZES for place in places}
    updates = {key: run.result() for key, run in runs.items()}
    calls = {size: calls_per_exchange(programs, work, environment, size) for size in RECORD_SIZES}
    drawn = {size: updates[size, "window drawn"] for size in RECORD_SIZES}
    rows = [run_row(update, *key) for key, update in updates.items()]
    rows += [processor_row(update, size) for size, update in drawn.items()]
    rows += [calls_row(calls[size], drawn[size].lines, size) for size in RECORD_SIZES]
    notes = {"Where the rest of an update goes": losses_text(updates),
             "The system calls of an exchange": calls_text(calls)}
    return rows, notes
