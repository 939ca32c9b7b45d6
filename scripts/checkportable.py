#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks through the sources for what another compiler on Windows doesn't take: checkportable.py [--self-check].

What the compilers here refuse themselves isn't looked for: extensions of the language, narrowing, shadowed names,
designated initializers in another order. What GCC's headers for Windows have and Microsoft's haven't is.
"""
import os
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LONGEST_LITERAL = 16380  # bytes
LONGEST_JOINED = 65535  # bytes, of literals that stand one after another
LONGEST_OBJECT = 200  # characters of a path below the build folder; with that folder's they may be 250
LONGEST_NAME = 160  # characters of a path below the folder of the sources; with that folder's they may be 259
LONGEST_CHAIN = 100  # of "else if" in a function: each is a block in the one before, and 128 are taken

# What only one family of compilers has, or only its headers, and why it is refused.
REFUSED = [
    (r"\b__(?!FILE__|LINE__|func__|VA_ARGS__|VA_OPT__|has_include|cpp_|uuidof|declspec)[A-Za-z]\w*",
     "a compiler's own name: attributes are written [[...]], and features asked for by __cpp_..."),
    (r"#\s*pragma\s+(GCC|clang)\b", "a pragma of one compiler"),
    (r"\b(ssize_t|pid_t|mode_t|u_int\d+_t)\b", "no type on Windows: use qsizetype or qint64"),
    (r"\bM_[A-Z]\w+", "no constant on Windows: use std::numbers"),
    (r"#\s*include\s+<(unistd|strings|dlfcn|pwd|dirent|pthread|getopt|libgen|sys/(?!stat|types|timeb|utime)\w+)\.h>",
     "a header of Unix"),
    (r"(?<![\w.:>])(strn?casecmp|strn?dup|snprintf_l|v?asprintf|getline|usleep|nanosleep|getpid|isatty|fileno|unlink"
     r"|realpath|basename|gettimeofday|clock_gettime|(local|gm)time_r|strtok_r|(un)?setenv|mkstemp|ftruncate|fsync"
     r"|alloca)\s*\(",
     "a function of Unix"),
    (r"\b(TCHAR|LPC?TSTR|_T\(|TEXT\()", "its characters are those of a macro: use wchar_t"),
    (r"\b[A-Z]\w*[a-z]A\s*\(", "takes its text in a code page: use its twin that ends in W"),
    (r"\b(if|while) \(\([a-z]\w* = .*\)\)( \{)?$", "an assignment for a condition, which is warned of"),
]
# A library that isn't told to be static may become a DLL, and a class with signals isn't exported from one.
OF_ANY_KIND = re.compile(r"\badd_library\(\s*[^\s)]+\s+(?!STATIC|OBJECT|INTERFACE|ALIAS|UNKNOWN)")
# What no file on Windows may be called.
NO_NAME = re.compile(r'[<>:"|?*\\\x00-\x1f]|[. ](/|$)|(^|/)(con|prn|aux|nul|com\d|lpt\d)(\.[^/]*)?(/|$)', re.I)
# Files that are never compiled on Windows: by their ending, and those that only the lists for Linux have.
OF_UNIX = re.compile(r"_(posix|unix|none)\.(cpp|h)$"
                     r"|^(allocations|tst_interruption|tst_previewtrouble|tst_program|webdriver)\.cpp$")


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
        for match in re.finditer(pattern, code, re.M):
            yield code.count("\n", 0, match.start()) + 1, f"{match.group(0).strip()}: {why}"
    line = 1
    for function in re.split(r"(?<=\n})", code):
        if function.count("else if") > LONGEST_CHAIN:
            yield line, f"more than {LONGEST_CHAIN} times \"else if\", and 128 blocks in each other are taken"
        line += function.count("\n")


def name_problems(names):
    """Names of files, paths below the folder of the sources, and what is wrong with them."""
    seen = {}
    for name in names:
        other = seen.setdefault(name.lower(), name)
        if other != name:
            yield name, f"is the same name as {other} on Windows"
        if NO_NAME.search(name):
            yield name, "is no name on Windows"
        if len(name) > LONGEST_NAME:
            yield name, f"has a path of {len(name)} characters, and {LONGEST_NAME} are taken"


def files():
    """All files of the project, but for what is built."""
    for folder, folders, names in os.walk(ROOT):
        folders[:] = sorted(f for f in folders if f not in (".git", "build"))
        yield from (pathlib.Path(folder, name).relative_to(ROOT) for name in sorted(names))


def sources():
    for folder in ("src", "tests", "resources/windows"):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".cpp", ".h") and "data" not in path.relative_to(ROOT).parts[:2]:
                yield path


def self_check():
    """Each rule finds what it is there for, and nothing in what stands beside it."""
    bad = {
        "int x __attribute__((unused));": 1, "ssize_t n;": 1, "#include <unistd.h>": 1, "int y = __builtin_ctz(x);": 1,
        "long n = __cplusplus;": 1, "auto p = M_PI;": 1, "int n = isatty(1);": 1, "TCHAR c;": 1,
        "MessageBoxA(nullptr);": 1, "if ((a = f(b))) {": 1,
        "pid_t p;": 1, "void f()\n{\n" + "else if (x) g();\n" * 101 + "}\n": 1,
        'auto t = "' + "x" * 20000 + '";': 1,
        '"' + ('x' * 9000 + '" "') * 8 + '";': 1,
    }
    good = [
        "// ssize_t\nint a; /* __attribute__((x)) */", 'auto s = "__builtin_x ssize_t";', "auto b = c ? d : e;",
        "#ifndef Q_OS_WIN\n#include <unistd.h>\n#endif", "#ifdef Q_OS_WIN\nint w;\n#else\nssize_t n;\n#endif",
        'auto t = "' + "x" * 9000 + '" "' + "x" * 9000 + '";', "f(A{.b = 1});",
        "while ((n = read(b)) > 0) {", "file.unlink();", "auto a = __FILE__;", "MessageBoxW(nullptr);",
        ("void f()\n{\n" + "else if (x) g();\n" * 60 + "}\n") * 2,
    ]
    failed = [text[:60] for text, count in bad.items() if len(list(problems_of("a.cpp", text))) != count]
    failed += [text[:60] for text in good if list(problems_of("a.cpp", text))]
    failed += ["a file of Unix"] if list(problems_of("a_posix.cpp", "ssize_t n;")) else []
    names = ["a/b.cpp", "a/B.cpp", "a:b", "a/con.txt", "dots./a", "a" * 200, "context/a.con", ".ci/run"]
    failed += [] if len(list(name_problems(names))) == 5 else ["names of files"]
    failed += [] if OF_ANY_KIND.search("add_library(a\n    a.cpp)") else ["a library of any kind"]
    failed += ["a static library"] if OF_ANY_KIND.search("add_library(a STATIC a.cpp)") else []
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
    everything = list(files())
    for name, why in name_problems(path.as_posix() for path in everything):
        print(f"{name}: {why}", file=sys.stderr)
        wrong += 1
    for name in everything:
        if (ROOT / name).is_symlink():
            print(f"{name}: a link, which a checkout on Windows makes a text of", file=sys.stderr)
            wrong += 1
        if name.name == "CMakeLists.txt" or name.suffix == ".cmake":
            for match in OF_ANY_KIND.finditer((ROOT / name).read_text(encoding="utf-8")):
                print(f"{name}: {match.group(0).strip()}: say STATIC, or what it is", file=sys.stderr)
                wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
