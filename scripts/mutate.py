#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Mutation testing: puts small faults into src/work and src/window, one at a time, and looks whether a test fails.

A fault, or mutant, is one change of the text by one of the rules below. Each is compiled to one object, linked in front
of the libraries of a built preset into a test program of its own, and meets the suites that run the changed line, one
after another, until one fails. What no suite notices has survived: it shows a gap in the tests, or stands in
tests/mutants.md with the reason why it can't be noticed. One of which the compiler makes the same code is no fault,
and isn't counted. The same seed draws the same mutants.
"""

import argparse
import collections
import concurrent.futures
import contextlib
import functools
import json
import os
import pathlib
import queue
import random
import re
import shlex
import shutil
import signal
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/dev"
WORK = ROOT / "build/mutants"
LIST = ROOT / "tests/mutants.md"
FOLDERS = ["src/work", "src/window"]
# Whose suites run a file of the folder
PROGRAMS = {"src/work": ["tests_work", "tests_window"], "src/window": ["tests_window"]}

# ---- The rules

TOKEN = re.compile(r"""//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'""", re.S)
SWAPS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&"}
STATEMENT = re.compile(r"^\s*(?:[\w.:>*()\[\]-]+(?:\(.*\)| [-+|&]?= .*)|[\w.]+(?:\+\+|--)|\+\+\w+|continue|return|break);\s*$")
NO_STATEMENT = re.compile(r"^\s*(?:using|return .|static_assert|template|case|default|else|const|constexpr|auto)\b")


def masked(text):
    """The text with comments and what stands between quotes blanked, so that only code is left at its places."""

    def blank(match):
        token = match.group()
        inside = re.sub(r"[^\n]", " ", token)
        return token[0] + inside[1:-1] + token[-1] if token[0] in "\"'" else inside

    return TOKEN.sub(blank, text)


def closing(code, start):
    """The place of the bracket that closes the one at the start; -1 where the line doesn't hold it."""
    depth = 0
    for place in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place
    return -1


def mutants_of_line(line, code):
    """All changes of a line: what each rule is called and the changed line. The code is the line as masked() has it."""
    if line.startswith("#") or not code.strip():
        return

    def changed(start, end, text):
        return line[:start] + text + line[end:]

    for match in re.finditer(r"\bif (?:constexpr )?\(", code):
        opened, closed = match.end() - 1, closing(code, match.end() - 1)
        if closed > 0:
            begin = max(opened + 1, code.rfind("; ", opened, closed) + 2)
            yield "negate", changed(begin, closed, "!(" + line[begin:closed] + ")")
    for match in re.finditer(r"(?<= )(==|!=|<=|>=|<|>|&&|\|\|)(?= |$)", code):
        yield "swap", changed(*match.span(), SWAPS[match.group()])
    for match in re.finditer(r"(?<![\w.\"'])\d+(?![\w.\"'])", code):
        for step in (1, -1):
            yield "number", changed(*match.span(), str(int(match.group()) + step))
    for match in re.finditer(r"\b(true|false)\b", code):
        yield "bool", changed(*match.span(), "false" if match.group() == "true" else "true")
    for match in re.finditer(r"(?<=[ (])!(?=[\w(])", code):
        yield "not", changed(*match.span(), "")
    for match in re.finditer(r'"( *)"', code):
        yield "text", changed(match.end() - 1, match.end(), 'X"')
    if STATEMENT.match(code) and not NO_STATEMENT.match(code):
        yield "drop", re.match(r"\s*", line).group() + ";"


class Mutant:
    def __init__(self, file, number, rule, line, change, turn):
        self.file, self.number, self.rule, self.line, self.change = file, number, rule, line, change
        self.turn = turn  # among the equal lines of the file; 0 where there is only one

    def __str__(self):
        return f"{self.file}:{self.number} {self.rule}: {self.line.strip()} -> {self.change.strip()}"

    def entry(self):
        """How the list names it: without the line's number, which other changes move."""
        which = f" (number {self.turn} of such lines)" if self.turn else ""
        return f"{self.line.strip()} -> {self.change.strip()}{which}"

    def key(self):
        return self.file, self.entry()


def mutants_of_text(file, text):
    lines, code = text.split("\n"), masked(text).split("\n")
    repeated, seen, mutants = collections.Counter(map(str.strip, lines)), collections.Counter(), []
    for number, line in enumerate(lines, 1):
        seen[line.strip()] += 1
        turn = seen[line.strip()] if repeated[line.strip()] > 1 else 0
        mutants += [Mutant(file, number, rule, line, change, turn)
                    for rule, change in mutants_of_line(line, code[number - 1])]
    return mutants


def mutants_of_file(file):
    return mutants_of_text(file, (ROOT / file).read_text())


def listed_survivors():
    """The list's entries, by file, which it names below src, and change: whether the reason calls them equivalent."""
    entries, group, file = {}, [], ""
    for line in LIST.read_text().split("\n"):
        if line.startswith("## "):
            file = "src/" + line[3:].strip()
        elif line.startswith("    "):
            group.append((file, line.strip()))
        elif line and group:
            entries |= dict.fromkeys(group, line.startswith("Equivalent: "))
            group = []
    return entries


# ---- Compiling and linking

def compile_command(file, source, target, *more):
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    command = next(entry["command"] for entry in commands if entry["file"] == str(ROOT / file))
    words = [word for word in shlex.split(command) if word != "ccache"]
    # The build's own list of what the file includes stays as it is.
    for flag, operands in (("-MF", 1), ("-MT", 1), ("-MD", 0), ("-o", 1), ("-c", 1)):
        if flag in words:
            del words[words.index(flag):words.index(flag) + 1 + operands]
    # Equal code makes equal objects, wherever its source lies and whatever its column.
    same = ["-gno-column-info", f"-ffile-prefix-map={source}={file}"]
    return words + ["-w", "-iquote", str((ROOT / file).parent), *same, *more, "-o", str(target), "-c", str(source)]


@functools.cache
def unchanged_object(file, place):
    """What the compiler makes of a file without a mutant."""
    source, target = place / "mutant.cpp", place / "unchanged.o"
    shutil.copyfile(ROOT / file, source)
    subprocess.run(compile_command(file, source, target), cwd=BUILD, check=True)
    return target.read_bytes()


def link_command(program):
    commands = subprocess.run(["ninja", "-t", "commands", f"bin/{program}"], cwd=BUILD, check=True, text=True,
                              capture_output=True).stdout.strip()
    return commands.split("\n")[-1]


def link(command, program, objects, target, *more):
    """Objects that stand before a library take the place of the library's own."""
    given = " ".join(shlex.quote(str(word)) for word in [*objects, *more, "-o", target])
    assert f" -o bin/{program} " in command
    subprocess.run(command.replace(f" -o bin/{program} ", f" {given} "), shell=True, cwd=BUILD, check=True,
                   capture_output=True)


def place_for_programs(folder):
    """A folder of programs that find beside them what they find in the build's."""
    folder.mkdir(parents=True, exist_ok=True)
    for entry in (BUILD / "bin").iterdir():
        link_there = folder / entry.name
        if not link_there.is_symlink() and not link_there.exists():
            link_there.symlink_to(entry)


def tests():
    """The suites of each program, by ctest's own list."""
    listed = json.loads(subprocess.run(["ctest", "--show-only=json-v1"], cwd=BUILD, check=True, text=True,
                                       capture_output=True).stdout)
    suites = {}
    for test in listed["tests"]:
        command = test.get("command", [])
        if len(command) == 2 and test["name"] == command[1]:
            suites.setdefault(pathlib.Path(command[0]).name, []).append(command[1])
    return suites


def run_suite(program, suite, limit, **variables):
    """Whether it passes, and how long it took. One that hangs fails, and nothing is awaited after the first failure."""
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"} | variables
    begun = time.monotonic()
    process = subprocess.Popen([program, suite], env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                               start_new_session=True)

    def end():
        # Together with what it has started
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)

    clock = threading.Timer(limit, end)
    clock.start()
    failed = any(line.startswith(b"FAIL!") for line in process.stdout)
    if not failed:
        failed = process.wait() != 0
    clock.cancel()
    end()
    process.wait()
    process.stdout.close()
    return not failed, time.monotonic() - begun


# ---- Which suites run a line

def measure(jobs):
    """By file and line the suites that run it, and how long each suite takes; kept until a test program is built anew."""
    programs = sorted({program for names in PROGRAMS.values() for program in names})
    state = [str((BUILD / "bin" / program).stat().st_mtime_ns) for program in programs]
    kept = WORK / "lines.json"
    if kept.exists() and (result := json.loads(kept.read_text()))["state"] == state:
        return result
    print("Looking which suites run which line", file=sys.stderr)
    folder = WORK / "lines"
    shutil.rmtree(folder, ignore_errors=True)
    place_for_programs(folder / "bin")
    files = [str(path.relative_to(ROOT)) for where in FOLDERS for path in sorted((ROOT / where).rglob("*.cpp"))]
    objects = {file: folder / (file.replace("/", "_") + ".o") for file in files}
    result = {"state": state, "lines": {}, "seconds": {}}
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(lambda file: subprocess.run(compile_command(file, ROOT / file, objects[file], "--coverage"),
                                                  cwd=BUILD, check=True), files))
        runs = []
        for program in programs:
            own = [objects[file] for file in files if program in PROGRAMS["/".join(file.split("/")[:2])]]
            (folder / "bin" / program).unlink()
            link(link_command(program), program, own, folder / "bin" / program, "--coverage")
            runs += [(program, suite) for suite in tests()[program]]

        def count(run):
            counters = folder / run[1]
            passed, seconds = run_suite(folder / "bin" / run[0], run[1], 600, GCOV_PREFIX=str(counters))
            if not passed:
                sys.exit(f"mutate: {run[1]} fails without a mutant")
            return run[1], seconds, lines_run(counters)

        for suite, seconds, lines in pool.map(count, runs):
            result["seconds"][suite] = seconds
            for file, number in lines:
                result["lines"].setdefault(file, {}).setdefault(str(number), []).append(suite)
    kept.write_text(json.dumps(result))
    shutil.rmtree(folder)
    return result


def lines_run(counters):
    """The lines that counters tell of, as pairs of file and number."""
    lines = set()
    for counter in counters.rglob("*.gcda"):
        # gcov looks for what the compiler has noted beside the counters.
        notes = pathlib.Path("/", counter.relative_to(counters)).with_suffix(".gcno")
        shutil.copy(notes, counter.with_suffix(".gcno"))
        told = subprocess.run(["gcov", "--json-format", "--stdout", counter], check=True, capture_output=True,
                              cwd=counters).stdout
        for report in told.splitlines():
            for source in json.loads(report)["files"]:
                path = pathlib.Path(source["file"])
                if path.suffix == ".cpp" and path.is_absolute() and path.is_relative_to(ROOT / "src"):
                    file = str(path.relative_to(ROOT))
                    lines |= {(file, line["line_number"]) for line in source["lines"] if line["count"] > 0}
    return lines


@functools.cache
def including_suites(name):
    """The suites that include the header of that name."""
    return {path.stem for path in (ROOT / "tests").rglob("tst_*.cpp") if f'/{name}.h"\n' in path.read_text()}


def suites_for(mutant, measured):
    """
    The suites that run the line: those of its file's name first, then the quickest. A line that holds no code, as of a
    table, is of all that run something of its file, and of those that include its header.
    """
    lines = measured["lines"].get(mutant.file, {})
    suites = lines.get(str(mutant.number))
    if not suites:
        suites = {suite for names in lines.values() for suite in names}
        suites |= including_suites(pathlib.Path(mutant.file).stem) & measured["seconds"].keys()
    name = pathlib.Path(mutant.file).stem
    return sorted(suites, key=lambda suite: (name not in suite and suite[4:] not in name, measured["seconds"][suite]))


# ---- Trying

def attempt(mutant, place, measured, programs, commands):
    """What became of a mutant: the suite that fails, "survived", "doesn't compile" or "same code"."""
    source, target = place / "mutant.cpp", place / "mutant.o"
    unchanged = unchanged_object(mutant.file, place)
    lines = (ROOT / mutant.file).read_text().split("\n")
    lines[mutant.number - 1] = mutant.change
    source.write_text("\n".join(lines))
    if subprocess.run(compile_command(mutant.file, source, target), cwd=BUILD, capture_output=True).returncode != 0:
        return "doesn't compile"
    if target.read_bytes() == unchanged:
        return "same code"
    linked = set()
    for suite in suites_for(mutant, measured):
        program = programs[suite]
        if program not in linked:
            (place / "bin" / program).unlink(missing_ok=True)
            try:
                link(commands[program], program, [target], place / "bin" / program)
            except subprocess.CalledProcessError:
                return "doesn't compile"
            linked.add(program)
        if not run_suite(place / "bin" / program, suite, 3 * measured["seconds"][suite] + 20)[0]:
            return suite
    return "survived"


def percent(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else "none"


def run(drawn, count, jobs):
    """Tries as many of the mutants as are asked for, in their order. The exit code."""
    measured = measure(jobs)
    programs = {suite: program for program, suites in tests().items() for suite in suites}
    commands = {program: link_command(program) for program in {name for names in PROGRAMS.values() for name in names}}
    places = queue.Queue()
    for number in range(jobs):
        place_for_programs(WORK / str(number) / "bin")
        places.put(WORK / str(number))
    ends, survivors, uncounted = collections.Counter(), [], ("doesn't compile", "same code")

    def one(mutant):
        place = places.get()
        try:
            return mutant, attempt(mutant, place, measured, programs, commands)
        finally:
            places.put(place)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        # As many more as aren't counted are drawn, in the same order.
        while drawn and (missing := count - ends["killed"] - ends["survived"]) > 0:
            batch, drawn = drawn[:missing], drawn[missing:]
            for mutant, end in pool.map(one, batch):
                print(f"{end}\t{mutant}", flush=True)
                survivors += [mutant] if end == "survived" else []
                ends[end if end in ("survived", *uncounted) else "killed"] += 1
    listed = listed_survivors()
    known = [listed[mutant.key()] for mutant in survivors if mutant.key() in listed]
    tried, killed = ends["killed"] + ends["survived"], ends["killed"]
    faults = tried - sum(known)
    print(f"\n{tried} mutants, {killed} killed ({percent(killed, tried)}). {len(survivors)} survived; tests/mutants.md "
          f"calls {sum(known)} of them equivalent (without them {percent(killed, faults)} killed), lists "
          f"{len(known) - sum(known)} more, and not the other {len(survivors) - len(known)}. Not counted: "
          f"{ends['same code']} of the same code, {ends[uncounted[0]]} that don't compile.")
    for mutant in survivors:
        if mutant.key() not in listed:
            print(mutant)
    return 1 if len(known) < len(survivors) else 0


# ---- The check of this program itself

SNIPPET = '''#include "a.h" // if (no == 1)
int f(bool on)
{
    if (int n = g("a == b", 1); n < 7 && !on)
        return n; /* 5 != 6 */
    call(u"text"_s, true);
    return 0;
}'''
EXPECTED = '''4 negate: if (int n = g("a == b", 1); !(n < 7 && !on))
4 swap: if (int n = g("a == b", 1); n <= 7 && !on)
4 swap: if (int n = g("a == b", 1); n < 7 || !on)
4 number: if (int n = g("a == b", 2); n < 7 && !on)
4 number: if (int n = g("a == b", 0); n < 7 && !on)
4 number: if (int n = g("a == b", 1); n < 8 && !on)
4 number: if (int n = g("a == b", 1); n < 6 && !on)
4 not: if (int n = g("a == b", 1); n < 7 && on)
4 text: if (int n = g("a == bX", 1); n < 7 && !on)
6 bool: call(u"text"_s, false);
6 text: call(u"textX"_s, true);
6 drop: ;
7 number: return 1;
7 number: return -1;'''


def self_check():
    """The rules on a text, and that the list names what is still there. The exit code."""
    seen = [f"{mutant.number} {mutant.rule}: {mutant.change.strip()}" for mutant in mutants_of_text("", SNIPPET)]
    failures = [f"expected: {line}" for line in EXPECTED.split("\n") if line not in seen]
    failures += [f"unexpected: {line}" for line in seen if line not in EXPECTED.split("\n")]
    for file, entry in listed_survivors():
        if not (ROOT / file).exists() or entry not in [mutant.entry() for mutant in mutants_of_file(file)]:
            failures.append(f"tests/mutants.md names what isn't in {file}: {entry}")
    print("\n".join(failures))
    return 1 if failures else 0


def main():
    parser = argparse.ArgumentParser(prog="./dev mutate", description="Tries whether the tests notice small faults.")
    parser.add_argument("files", nargs="*", metavar="FILE", help="sources; by default all of src/work and src/window")
    parser.add_argument("--count", type=int, default=500, help="how many mutants (500)")
    parser.add_argument("--seed", type=int, default=1, help="draws others by another number (1)")
    parser.add_argument("--again", metavar="LOG", 
                        help="only what survived in a run whose output this is, and isn't in the list")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="how many at a time")
    parser.add_argument("--self-check", action="store_true", help="only checks the rules and the list")
    options = parser.parse_args()
    if options.self_check:
        return self_check()
    files = options.files or [str(path.relative_to(ROOT)) for where in FOLDERS
                              for path in sorted((ROOT / where).rglob("*.cpp"))]
    drawn = [mutant for file in files for mutant in mutants_of_file(file)]
    random.Random(options.seed).shuffle(drawn)
    if options.again:
        lines = set(pathlib.Path(options.again).read_text().split("\n"))
        listed = listed_survivors()
        drawn = [mutant for mutant in drawn if f"survived\t{mutant}" in lines and mutant.key() not in listed]
    return run(drawn, options.count, options.jobs)


if __name__ == "__main__":
    sys.exit(main())
