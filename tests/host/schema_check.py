#!/usr/bin/env python3
"""Keeps schema/hipjobs.schema.json true: every line hipjobs --json prints for
the examples and the scene cases (loads and summaries) validates against it,
the README's key tables name exactly the schema's keys, and the README's
table of result statuses is the one hipjobs --help prints."""
import json
import re
import subprocess
import sys
from pathlib import Path

import jsonschema

hipjobs, source = sys.argv[1], Path(sys.argv[2])
schema = json.loads((source / "schema/hipjobs.schema.json").read_text())
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
failures = []


def run(*args):
    # Exit statuses are hipjobs_test's concern; hostile cases fail on purpose.
    return subprocess.run([hipjobs, "--quiet", *args], capture_output=True, text=True).stdout


def validate(args, expected_lines, kind):
    out = run(*args).splitlines()
    if len(out) != expected_lines:
        failures.append(f"{' '.join(args)}: {len(out)} lines, expected {expected_lines}")
    for line in out:
        doc = json.loads(line)
        error = jsonschema.exceptions.best_match(validator.iter_errors(doc))
        if error:
            where = "/".join(map(str, error.absolute_path))
            failures.append(f"{doc.get('scene', 'total')}: {where}: {error.message[:200]}")
        elif not any(validator.evolve(schema=schema["$defs"][k]).is_valid(doc) for k in kind):
            failures.append(f"{doc.get('scene', 'total')}: not a {' or '.join(kind)} object")


folders = [str(source / "examples"), str(source / "tests/cases")]
scenes = sum(len([p for p in Path(f).rglob("*") if p.is_file() and p.suffix in (".hip", ".hipnc", ".hiplc")]) for f in folders)
validate(["--json", "--vars", *folders], scenes, ["scene"])
validate(["--json", "--summary", *folders], scenes + 1, ["summary", "total"])

# README: each "<!-- schema: NAME -->" comment stands before the table of $defs NAME.
readme = (source / "README.md").read_text()
for name, table in re.findall(r"<!-- schema: (\w+) -->\n\n((?:\|.*\n)+)", readme):
    keys = set()
    for row in table.splitlines()[2:]:
        keys.update(re.findall(r"`([^`]+)`", row.split("|")[1]))
    wanted = set(schema["$defs"][name]["properties"])
    if keys != wanted:
        failures.append(f"README table {name}: lacks {sorted(wanted - keys)}, extra {sorted(keys - wanted)}")
if len(re.findall(r"<!-- schema: \w+ -->", readme)) != 4:
    failures.append("README: expected the scene, job, summary and total tables")

help_codes = re.findall(r"^ {13}(\d+) (.+)$", run("--help"), re.M)
table = re.search(r"<!-- result statuses -->\n\n((?:\|.*\n)+)", readme)
readme_codes = re.findall(r"^\| (\d+) \| `([^`]+)` \|", table.group(1), re.M) if table else []
if not help_codes or help_codes != readme_codes:
    failures.append(f"README result statuses {readme_codes} differ from --help {help_codes}")

for f in failures:
    print(f)
sys.exit(1 if failures else 0)
