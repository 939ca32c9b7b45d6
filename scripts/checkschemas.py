#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holds all JSON that the console programs print against the schemas in resources/schemas.

Usage: checkschemas.py FOLDER_OF_PROGRAMS
Makes a built-in PC in a temporary folder, has each command write its JSON, and validates it. Ends with 1 where
something doesn't fit, or a schema is left that nothing was held against.
"""

import json
import subprocess
import sys
import tempfile
from pathlib import Path

import jsonschema

SCHEMAS = Path(__file__).resolve().parent.parent / "resources" / "schemas"


class Check:
    def __init__(self, programs, place):
        self.programs = Path(programs)
        self.place = Path(place)
        self.left = {path.name.removesuffix(".schema.json") for path in SCHEMAS.glob("*.schema.json")}
        self.failures = []

    def run(self, program, *words, given=""):
        done = subprocess.run([self.programs / program, *words], cwd=self.place, input=given.encode(),
                              capture_output=True, check=False)
        return done.stdout.decode()

    def hold(self, schema, document):
        """Validates one document; an empty list or object would show nothing."""
        self.left.discard(schema)
        rules = json.loads((SCHEMAS / f"{schema}.schema.json").read_text())
        validator = jsonschema.Draft202012Validator
        validator.check_schema(rules)
        if not document:
            self.failures.append(f"{schema}: there was nothing to check")
        for error in list(validator(rules).iter_errors(document))[:3]:
            self.failures.append(f"{schema}: {error.json_path}: {error.message}")

    def printed(self, schema, program, *words):
        text = self.run(program, *words)
        try:
            self.hold(schema, json.loads(text))
        except json.JSONDecodeError as error:
            self.failures.append(f"{schema}: {' '.join(words)} printed no JSON: {error}")


def check_rehearse(check):
    def printed(schema, *words):
        check.printed(schema, "kestrune-rehearse", *words)

    check.run("kestrune-rehearse", "new", "before", "--from", "windows11")
    check.run("kestrune-rehearse", "new", "pc", "--from", "windows11")
    printed("preview", "preview", "pc", "--json", "-")
    printed("preview-all", "preview", "--all", ".", "--json", "-")
    for job in (["optimize"], ["sysinfo"]):
        for line in check.run("kestrune-rehearse", "run", "pc", *job, "--json").splitlines():
            check.hold("run", json.loads(line))
    check.run("kestrune-rehearse", "run", "pc", "svc-enable", "DiagTrack")
    for what in ("services", "tasks", "packages", "autorun", "processes"):
        printed(f"list-{what}", "list", "before", what, "--json")
    printed("list-registry", "list", "pc", "registry", r"HKCU\Software\Kestrune\Ondrevale\Tweak", "--json")
    printed("diff", "diff", "before", "pc", "--json")
    printed("verify", "verify", "before", "pc", "--json")
    printed("undo-sessions", "undo", "pc", "--list", "--json", "-")
    printed("undo-items", "undo", "pc", "--json", "-")


def check_cli(check):
    def printed(schema, *words):
        check.printed(schema, "kestrune-cli", *words, "--machine", "before", "--json", "-")

    printed("pc", "status")
    printed("plan", "plan")
    printed("pc", "apply")
    printed("pc", "apply")
    printed("pc", "verify")
    printed("why", "why", "xbox")
    printed("undo-items", "undo")
    check_dsc(check)
    check.hold("profile", json.loads(check.run("kestrune-cli", "profile", "new")))
    for example in sorted((SCHEMAS.parent / "profiles").glob("*.json")):
        check.hold("profile", json.loads(example.read_text()))
    schema = json.loads(check.run("kestrune-cli", "profile", "schema"))
    if schema != json.loads((SCHEMAS / "profile.schema.json").read_text()):
        check.failures.append("profile: 'kestrune-cli profile schema' prints another one")


def check_dsc(check):
    """What it gives fits its own schema; the manifest that is packed is the one it prints."""
    rules = json.loads(check.run("kestrune-cli", "dsc", "schema"))
    validator = jsonschema.Draft202012Validator
    validator.check_schema(rules)
    for verb in ("export", "get", "set", "test"):
        instance = json.loads(check.run("kestrune-cli", "dsc", verb, "--machine", "before", given='{"formatVersion": 1}'))
        for error in list(validator(rules).iter_errors(instance))[:3]:
            check.failures.append(f"dsc {verb}: {error.json_path}: {error.message}")
    printed = json.loads(check.run("kestrune-cli", "dsc", "manifest"))
    packed = (SCHEMAS.parent / "dsc" / "kestrune.dsc.resource.json.in").read_text()
    if json.loads(packed.replace("@PROJECT_VERSION@", printed["version"])) != printed:
        check.failures.append("dsc: the manifest in resources/dsc is another one than 'kestrune-cli dsc manifest' prints")


def main():
    with tempfile.TemporaryDirectory() as place:
        check = Check(Path(sys.argv[1]).resolve(), place)
        check_rehearse(check)
        check_cli(check)
    failures = check.failures + [f"{schema}: nothing was held against it" for schema in sorted(check.left)]
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
