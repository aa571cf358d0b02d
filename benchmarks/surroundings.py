"""What the measurements stand on: the machine, a display without a screen, other processes."""

import contextlib
import os
import platform
import subprocess
import tempfile
import time
from pathlib import Path


def machine():
    """A few words on the machine that say nothing of whose it is."""
    cpu = [line.split(":")[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
           if line.startswith("model name")]
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return (f"{len(cpu)} cores ({cpu[0]}), {system}, kernel {platform.release()}; "
            f"load average at the start {os.getloadavg()[0]:.1f}, priority {priority()}")


def priority():
    """The nice value, or that of the session where the system schedules whole sessions."""
    group = Path("/proc/self/autogroup")
    # Empty for a process that belongs to none.
    words = group.read_text().split() if group.exists() else []
    session = int(words[-1]) if words else 0
    return session or os.nice(0)


@contextlib.contextmanager
def display():
    """The environment of a program whose window is drawn, on a display of its own."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x800x24",
                               "-nolisten", "tcp"], pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with tempfile.TemporaryDirectory() as runtime, os.fdopen(reader) as told:
        environment = dict(os.environ, DISPLAY=f":{told.readline().strip()}",
                           QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", XDG_RUNTIME_DIR=runtime)
        try:
            yield environment
        finally:
            server.terminate()
            server.wait()


def without_display(environment):
    return dict(environment, QT_QPA_PLATFORM="offscreen")


def output_of(command, environment=None):
    done = subprocess.run(command, env=environment, check=True, text=True, capture_output=True)
    return done.stdout


def process_times(commands, rounds):
    """The shortest time of each command as a process, in milliseconds; they take turns."""
    times = [[] for _ in commands]
    for _ in range(rounds):
        for command, taken in zip(commands, times):
            start = time.monotonic_ns()
            subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
            taken.append((time.monotonic_ns() - start) / 1e6)
    return [min(taken) for taken in times]
