"""What the logic itself costs, without a window and without waiting."""

import json
import re

from surroundings import output_of
from table import Row, number
import line
import update_files

TOP = 8
SEEDS = 200  # of the campaign, see logic.cpp


def figures(programs, which, files):
    """The fastest of several repetitions of the benchmarks whose names begin with one of `which`,
    by name; times in us."""
    command = [programs / "keplin-bench-logic", *files, f"--benchmark_filter=^({which})",
               "--benchmark_repetitions=15", "--benchmark_min_time=0.05",
               "--benchmark_enable_random_interleaving=true", "--benchmark_format=json"]
    fastest = {}
    for entry in json.loads(output_of(command))["benchmarks"]:
        name = entry["run_name"].removesuffix("/manual_time")
        single = entry["run_type"] == "iteration"
        if single and (name not in fastest or entry["real_time"] < fastest[name]["real_time"]):
            fastest[name] = entry
    return fastest


def profile(programs, work, benchmark, files):
    """Instructions in all, and the functions with the largest shares of their own."""
    record = work / "callgrind.out"
    output_of(["valgrind", "--tool=callgrind", f"--callgrind-out-file={record}",
               f"--toggle-collect=*{benchmark.split('/')[0].title()}(*",
               programs / "keplin-bench-logic", *files, f"--benchmark_filter=^{benchmark}$",
               "--benchmark_min_time=0"])
    listing = output_of(["callgrind_annotate", "--threshold=100", record])
    total = int(re.search(r"^([\d,]+) .*PROGRAM TOTALS", listing, re.M)[1].replace(",", ""))
    shares = {}
    for count, name in re.findall(r"^ *([\d,]+) \( *[\d.]+%\) +\S*?:(.+?)(?: \[.*)?$", listing,
                                  re.M):
        share = int(count.replace(",", "")) / total
        shares[plain(name)] = shares.get(plain(name), 0) + share
    return total, sorted(shares.items(), key=lambda item: -item[1])[:TOP]


def plain(name):
    """A function's name without arguments, templates and our own namespaces."""
    name = re.sub(r"\[abi:\w+\]|\(anonymous namespace\)::|'\d+$| const$", "", name)
    while re.search(r"[<(][^<>()]*[>)]", name):
        name = re.sub(r"[<(][^<>()]*[>)]", "", name)
    return re.sub(r"keplin::(test::|simulator::|benchmarks::)?", "", name).split(" ")[-1]


def profile_text(title, count, found):
    total, shares = found
    lines = [f"{title}: {total / count:,.0f} instructions each. Functions by their own share:\n"]
    return "\n".join(lines + [f"- {share:.1%} {name}" for name, share in shares]) + "\n"


def measure(programs, work, _environment):
    file = update_files.write(work / "session.HEX",
                              update_files.memory_file(line.MEMORY, line.RECORD_SIZES[0]))
    found = figures(programs, "session|campaign", [file])
    session = found["session/session"]
    seconds = session["real_time"] / 1e6
    floor = line.run_floor(file.read_text().split()) / 1000
    random = SEEDS / (found["campaign"]["real_time"] / 1e6)
    rows = [
        Row("Sessions a second on the virtual clock, 2,049 lines each", number(1 / seconds),
            f"as updates on the wire: {number(1 / floor)}", number(floor / seconds)),
        Row("Exchanges a second of those", number(session["exchanges"] / seconds)),
        Row("Random updates a second", number(random)),
    ]
    notes = {"Where the logic's own time goes": "\n".join([
        profile_text("A session of 2,049 lines", 1,
                     profile(programs, work, "session/session", [file])),
        profile_text("A random update", SEEDS, profile(programs, work, "campaign", []))])}
    return rows, notes
