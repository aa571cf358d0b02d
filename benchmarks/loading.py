"""Loading update files, beside other programs that read them and beside copying their bytes."""

from logic import figures
from surroundings import output_of, process_times
from table import Row, compared, number
import update_files

ROUNDS = 20
PAGES = 10


def write_files(work):
    shapes = {"1x16": (1, 16), "1001x16": (1001, 16), "10001x16": (10001, 16),
              "10001x255": (10001, 255)}
    return {name: update_files.write(work / f"{name}.HEX", update_files.long_file(*shape))
            for name, shape in shapes.items()}


def page_time(programs, environment, file):
    """From the dialog's answer to the painted page, in milliseconds, each in a new process."""
    command = [programs / "keplin-bench-program", "load", file]
    return min(int(output_of(command, environment).split()[1]) / 1e6 for _ in range(PAGES))


def rows_of(name, file, load, programs, environment):
    lines, size = name.split("x")
    title = f"Loading {int(lines):,} lines of {size} bytes"
    binary = file.with_suffix(".bin")
    objcopy, srec_info = process_times(
        [["objcopy", "-I", "ihex", "-O", "binary", file, binary], ["srec_info", file, "-intel"]],
        ROUNDS)
    taken = load[f"load/{name}"]["real_time"] / 1000
    copied = load[f"copy/{name}"]["real_time"] / 1000
    allocations = load[f"load/{name}"]["allocations"]
    page = page_time(programs, environment, file)
    return [
        compared(title, taken, objcopy, "ms", "objcopy", 0.1),
        compared(title, taken, srec_info, "ms", "srec_info"),
        compared(title, taken, copied, "ms", "copying its bytes"),
        compared(f"{title}, to the painted page", page, objcopy, "ms", "objcopy"),
        Row("Allocations of that", number(allocations), f"lines: {int(lines):,}",
            f"{allocations / int(lines):.2f}"),
    ]


def growth_row(files, load):
    """From 1,001 to 10,001 lines; what a file of one line takes is no part of the growth."""
    start, short, long = (load[f"load/{name}"]["real_time"] / 1000
                          for name in ("1x16", "1001x16", "10001x16"))
    bytes_more = files["10001x16"].stat().st_size / files["1001x16"].stat().st_size
    growth = (long - start) / (short - start)
    return Row("Growth of the loading time, 1,001 to 10,001 lines", f"{growth:.1f} times",
               f"growth of the file: {bytes_more:.1f} times", number(growth / bytes_more), "linear",
               "yes" if growth / bytes_more < 1.2 else "no")


def measure(programs, work, environment):
    files = write_files(work)
    load = figures(programs, "load|copy", files.values())
    one = load["load/1x16"]
    page = page_time(programs, environment, files["1x16"])
    rows = [Row("Loading 1 line of 16 bytes", f"{one['real_time'] / 1000:.3f} ms"),
            Row("Loading 1 line of 16 bytes, to the painted page", f"{number(page)} ms")]
    for name in ("10001x16", "10001x255"):
        rows += rows_of(name, files[name], load, programs, environment)
    return rows + [growth_row(files, load)], {}
