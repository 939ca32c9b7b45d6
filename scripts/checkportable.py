#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks through the sources for what another compiler on Windows doesn't take: checkportable.py [--self-check].

What the compilers here refuse themselves isn't looked for: extensions of the language, designated initializers in another
order, narrowing.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LONGEST_LITERAL = 16380  # bytes
LONGEST_JOINED = 65535  # bytes, of literals that stand one after another
LONGEST_OBJECT = 200  # characters of a path below the build folder; with that folder's they may be 250

# What only one family of compilers has, and why it is refused.
REFUSED = [
    (r"__attribute__\s*\(", "an attribute of its own: use [[...]]"),
    (r"__builtin_\w+", "a built-in function of one compiler"),
    (r"#\s*pragma\s+(GCC|clang)\b", "a pragma of one compiler"),
    (r"\bssize_t\b", "no type on Windows: use qsizetype or qint64"),
    (r"#\s*include\s+<(unistd|strings|dlfcn|pwd|dirent|sys/(?!stat|types|timeb|utime)\w+)\.h>", "a header of Unix"),
    (r"(?<![\w.:])(strcasecmp|strdup|snprintf_l|getline|usleep)\s*\(", "a function of Unix"),
]
# Files that are never compiled on Windows: by their ending, and those that only the lists for Linux have.
OF_UNIX = re.compile(r"_(posix|unix|none)\.(cpp|h)$|^(tst_interruption|tst_previewtrouble|webdriver)\.cpp$")


def without_comments(text):
    """The text with its comments blank, line by line as it was; literals stay."""
    token = re.compile(r'R"(\w*)\(.*?\)\1"|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)+\'|//[^\n]*|/\*.*?\*/', re.S)

    def blank(match):
        found = match.group(0)
        return re.sub(r"[^\n]", " ", found) if found.startswith(("//", "/*")) else found

    return token.sub(blank, text)


def without_literals(text):
    return re.sub(r'R"(\w*)\(.*?\)\1"|"(?:[^"\\\n]|\\.)*"', lambda m: '""' + "\n" * m.group(0).count("\n"), text,
                  flags=re.S)


def without_unix(text):
    """The text without what stands in a branch that Windows doesn't compile."""
    lines, branches = [], []
    for line in text.split("\n"):
        if match := re.match(r"\s*#\s*(if\w*|elif|else|endif)\b(.*)", line):
            word, condition = match.group(1), match.group(2)
            windows = re.search(r"Q_OS_WIN\b|_WIN32\b", condition) is not None
            of_unix = re.search(r"Q_OS_UNIX\b|Q_OS_LINUX\b", condition) is not None or "KESTRUNE_STRACE" in condition
            if word.startswith("if"):
                negated = word == "ifndef" or condition.strip().startswith("!")
                branches.append([windows and negated or of_unix and not negated, windows and not negated])
            elif word in ("else", "elif") and branches:
                branches[-1][0] = branches[-1][1] or (word == "elif" and of_unix)
            elif word == "endif" and branches:
                branches.pop()
            lines.append("")
        else:
            lines.append("" if any(skipped for skipped, _ in branches) else line)
    return "\n".join(lines)


def literal_problems(text):
    literal = r'(?:u8|u|U|L)?(?:R"(\w*)\((?:.*?)\)\1"|"(?:[^"\\\n]|\\.)*")(?:_\w+)?'
    for match in re.finditer(r"(?:" + literal.replace(r"(\w*)", r"\w*").replace(r"\1", r"\w*") + r"\s*)+", text, re.S):
        size = len(match.group(0).encode())
        single = max(len(part.encode()) for part in re.split(r'"\s+(?:u8|u|U|L)?R?"', match.group(0)))
        line = text.count("\n", 0, match.start()) + 1
        if single > LONGEST_LITERAL:
            yield line, f"a literal of {single} bytes, and {LONGEST_LITERAL} are taken"
        elif size > LONGEST_JOINED:
            yield line, f"literals of {size} bytes one after another, and {LONGEST_JOINED} are taken"


def problems_of(name, text):
    """Lines and what is wrong with them."""
    text = without_comments(text)
    yield from literal_problems(text)
    if OF_UNIX.search(name):
        return
    code = without_literals(without_unix(text))
    for pattern, why in REFUSED:
        for match in re.finditer(pattern, code):
            yield code.count("\n", 0, match.start()) + 1, f"{match.group(0).strip()}: {why}"


def sources():
    for folder in ("src", "tests", "resources/windows"):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".cpp", ".h") and "data" not in path.relative_to(ROOT).parts[:2]:
                yield path


def self_check():
    """Each rule finds what it is there for, and nothing in what stands beside it."""
    bad = {
        "int x __attribute__((unused));": 1, "ssize_t n;": 1, "#include <unistd.h>": 1, "int y = __builtin_ctz(x);": 1,
        'auto t = "' + "x" * 20000 + '";': 1,
        '"' + ('x' * 9000 + '" "') * 8 + '";': 1,
    }
    good = [
        "// ssize_t\nint a; /* __attribute__((x)) */", 'auto s = "__builtin_x ssize_t";', "auto b = c ? d : e;",
        "#ifndef Q_OS_WIN\n#include <unistd.h>\n#endif", "#ifdef Q_OS_WIN\nint w;\n#else\nssize_t n;\n#endif",
        'auto t = "' + "x" * 9000 + '" "' + "x" * 9000 + '";', "f(A{.b = 1});",
    ]
    failed = [text[:60] for text, count in bad.items() if len(list(problems_of("a.cpp", text))) != count]
    failed += [text[:60] for text in good if list(problems_of("a.cpp", text))]
    failed += ["a file of Unix"] if list(problems_of("a_posix.cpp", "ssize_t n;")) else []
    for text in failed:
        print(f"checkportable: a rule is wrong about: {text}", file=sys.stderr)
    return not failed


def main():
    if "--self-check" in sys.argv[1:] and not self_check():
        return 1
    wrong = 0
    for path in sources():
        name = path.relative_to(ROOT)
        for line, why in problems_of(path.name, path.read_text(encoding="utf-8")):
            print(f"{name}:{line}: {why}", file=sys.stderr)
            wrong += 1
        # folder/CMakeFiles/target.dir/file.cpp.obj; a target's name isn't longer than 30.
        if len(str(name.parent)) + len("/CMakeFiles/.dir/.obj") + 30 + len(path.name) > LONGEST_OBJECT:
            print(f"{name}: its object would have too long a path", file=sys.stderr)
            wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
