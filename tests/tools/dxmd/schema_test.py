#!/usr/bin/python3
"""Tries the schemas of dxmd on what its tests encoded: schema_test.py DXMD FOLDER.

Each file in the folder has a line of JSON for each text that was encoded or refused: its kind, the JSON, and the
refusal, which is empty when there was none. A schema must take what was encoded, and refuse what was refused, unless
it cannot say so.
"""

import contextlib
import json
import pathlib
import re
import subprocess
import sys

import jsonschema

# Refusals that a schema cannot say.
NOT_SAID = [
    "is not well-formed XML",  # texts of XML are texts to a schema
    " refuses it: ",  # a check of the library's own
    "INVALID_CHARACTER_ERR",  # a character that XML has not
    "is no character of XML",
    "*** stands where a secret belongs",
    "found a fractional number",  # 1.0 is an integer to a schema
]


def validators(dxmd):
    kinds = json.loads(subprocess.check_output([dxmd, "kinds", "--json"]))
    for kind in kinds:
        schema = json.loads(subprocess.check_output([dxmd, "schema", kind["kind"]]))
        jsonschema.Draft202012Validator.check_schema(schema)
        yield kind["kind"], jsonschema.Draft202012Validator(schema)


def lines_in(folder):
    """The lines of each file but the last, which another run of the tests may be writing, or may have moved away."""
    for file in folder.iterdir():
        with contextlib.suppress(FileNotFoundError):
            yield from file.read_bytes().split(b"\n")[:-1]


def main(dxmd, folder):
    schemas = dict(validators(dxmd))
    names = {kind.lower(): kind for kind in schemas}  # the tool takes them in any case
    tried = dict.fromkeys(schemas, 0)
    wrong = 0
    for line in sorted(set(lines_in(pathlib.Path(folder)))):
        case = json.loads(line)
        kind = names[case["kind"].lower()]
        tried[kind] += 1
        takes = schemas[kind].is_valid(case["json"])
        if takes and case["refusal"] and not any(reason in case["refusal"] for reason in NOT_SAID):
            print(f"{kind}: the schema takes {json.dumps(case['json'])}, refused: {case['refusal']}")
            wrong += 1
        if not takes and not case["refusal"]:
            why = jsonschema.exceptions.best_match(schemas[kind].iter_errors(case["json"])).message
            print(f"{kind}: the schema refuses {json.dumps(case['json'])}: {why}")
            wrong += 1
    print(", ".join(f"{kind} {count}" for kind, count in tried.items()))
    return 1 if wrong else 0


sys.exit(main(sys.argv[1], sys.argv[2]))
