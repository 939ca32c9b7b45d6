#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares benchmarks with the last release's table in docs/performance.md, or writes that table anew.

Usage: figures.py compare|write RESULTS [PAGE]
       figures.py --self-check
RESULTS is what kestrune-bench has written by --benchmark_out, each row some times. "compare" prints the rows that got worse
by more than 10 %, and ends with 1 where there are any. A ratio stands for itself, since both of its sides were measured
in one run. A time is seen against the median of all changes of times: another computer makes all of them longer.
"""

import json
import re
import statistics
import sys
from pathlib import Path

PAGE = Path(__file__).resolve().parent.parent / "docs" / "performance.md"
HEAD = "| Row | Time | Of it | What limits it |\n|---|---|---|---|\n"
UNITS = {"ns": 1e-9, "us": 1e-6, "µs": 1e-6, "ms": 1e-3, "s": 1.0}
WORSE = 1.10


def shown(number):
    """Three digits that count: 0.912, 3.66, 66.1, 1234."""
    return f"{number:.0f}" if number >= 100 else f"{number:.3g}"


def duration(seconds):
    """In the unit that gives it a number from 1 to 999."""
    unit = next((name for name in ("s", "ms", "µs") if seconds >= UNITS[name]), "ns")
    return f"{shown(seconds / UNITS[unit])} {unit}"


def seconds(text):
    number, unit = text.split()
    return float(number) * UNITS[unit]


def measured(results):
    """Of each row its time in seconds, and what else was measured of it, as the table shows it: medians."""
    rows = {}
    for run in results["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"figures: {run['name']}: {run.get('error_message', 'failed')}")
        if run.get("aggregate_name") != "median":
            continue
        name = re.sub(r"/(real_time|manual_time|process_time|iterations:\d+)", "", run["run_name"])
        parts = []
        if "each" in run:
            parts.append(duration(run["each"]) + " each")
        for counter in ("ratio", "own share"):
            if counter in run:
                parts.append(f"{counter} {shown(run[counter])}")
        if "peakMB" in run:
            parts.append(shown(run["peakMB"]) + " MB")
        rows[name] = (run["real_time"] * UNITS[run["time_unit"]], ", ".join(parts))
    return rows


def table(page):
    """The page's rows: of each its time in seconds, what else was measured, and what limits it."""
    rows = {}
    for line in page[page.index(HEAD) + len(HEAD):].splitlines():
        if not line.startswith("|"):
            break
        name, time, rest, limit = (cell.strip() for cell in line.strip("|").split("|"))
        rows[name] = (seconds(time), rest, limit)
    return rows


def ratio(rest):
    found = re.search(r"ratio ([\d.]+)", rest)
    return float(found[1]) if found else None


def worse(before, now):
    """What got worse by more than a tenth, a line each."""
    common = [name for name in before if name in now]
    timed = [now[name][0] / before[name][0] for name in common if ratio(before[name][1]) is None]
    computer = statistics.median(timed) if timed else 1.0
    lines = []
    for name in common:
        old, new = ratio(before[name][1]), ratio(now[name][1])
        if old is not None and new is not None:
            if new > old * WORSE:
                lines.append(f"{name}: ratio {shown(new)}, was {shown(old)}")
        elif now[name][0] / before[name][0] > computer * WORSE:
            lines.append(f"{name}: {duration(now[name][0] / computer)}, was {duration(before[name][0])}")
    return lines


def written(page, rows):
    """The page with these rows; what limits each stays as it is."""
    begin = page.index(HEAD) + len(HEAD)
    end = begin
    while page.startswith("|", end):
        end = page.index("\n", end) + 1
    limits = {name: row[2] for name, row in table(page).items()}
    lines = [f"| {name} | {duration(time)} | {rest} | {limits.get(name, '')} |\n" for name, (time, rest) in rows.items()]
    return page[:begin] + "".join(lines) + page[end:]


def main(command, results, page=PAGE):
    now = measured(json.loads(Path(results).read_text(encoding="utf-8")))
    text = Path(page).read_text(encoding="utf-8")
    if command == "write":
        Path(page).write_text(written(text, now), encoding="utf-8")
        return 0
    lines = worse(table(text), now)
    print("\n".join(lines) if lines else "Nothing got worse by more than 10 %.")
    return 1 if lines else 0


def self_check():
    """What the comparison says of figures that are known."""

    def run(name, time, **more):
        return {"run_name": name, "aggregate_name": "median", "real_time": time, "time_unit": "ms", **more}

    begin = {"benchmarks": [run("a/iterations:5/real_time", 10), run("b", 20, each=2e-6), run("c", 30),
                            run("d", 40, ratio=1.5), run("e", 50, peakMB=144)]}
    page = written("Before\n\n" + HEAD + "| c | 1 s |  | the disk |\n\nAfter\n", measured(begin))
    rows = table(page)
    assert list(rows) == ["a", "b", "c", "d", "e"], rows
    assert rows["b"] == (0.02, "2 µs each", ""), rows["b"]
    assert rows["c"][2] == "the disk" and rows["d"][1] == "ratio 1.5" and rows["e"][1] == "144 MB", rows
    assert page.startswith("Before\n") and page.endswith("|\n\nAfter\n"), page

    # A computer of half the speed: times are twice as long, ratios stay.
    slow = [run("a", 20), run("b", 40), run("c", 60), run("d", 80, ratio=1.5), run("e", 100)]
    assert not worse(rows, measured({"benchmarks": slow}))
    slow[2]["real_time"] = 70
    slow[3]["ratio"] = 1.7
    lines = worse(rows, measured({"benchmarks": slow}))
    assert lines == ["c: 35 ms, was 30 ms", "d: ratio 1.7, was 1.5"], lines
    return 0


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-check"]:
        sys.exit(self_check())
    if len(sys.argv) not in (3, 4) or sys.argv[1] not in ("compare", "write"):
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
