#!/usr/bin/python3
"""Tries the XML Schemas on what the tests of dxmd encoded: written_test.py SCHEMAS DXMD FOLDER.

Each file in the folder has a line of JSON for each message: its kind and its XML, which is empty when it was refused.
"""

import contextlib
import json
import pathlib
import sys

from documents import namespace, refused_by_dxmd, refused_by_xmllint

# What the tests set, whatever the library and the schemas were built for.
QUERY_SERVICE = "urn:dxmd:query-service:api:1"


def lines_in(folder):
    """The lines of each file but the last, which another run of the tests may be writing, or may have moved away."""
    for file in pathlib.Path(folder).iterdir():
        with contextlib.suppress(FileNotFoundError):
            yield from file.read_bytes().split(b"\n")[:-1]


def main(schemas, dxmd, folder):
    schemas = pathlib.Path(schemas)
    built = namespace(schemas, "execute")
    kinds = sorted(path.stem for path in schemas.glob("*.xsd"))
    names = {kind.lower(): kind for kind in kinds}  # the tool takes them in any case
    written = {kind: set() for kind in kinds}
    for case in map(json.loads, lines_in(folder)):
        if case["xml"]:
            document = case["xml"].replace(f'xmlns="{QUERY_SERVICE}"', f'xmlns="{built}"')
            written[names[case["kind"].lower()]].add(document)
    wrong = 0
    for kind, documents in written.items():
        if not documents:  # the test that encodes them was not asked for
            continue
        for refused in refused_by_xmllint(schemas, kind, documents), refused_by_dxmd(dxmd, kind, documents):
            for document, said in refused.items():
                print(f"{kind}: {said}: {document}")
                wrong += 1
    print(", ".join(f"{kind} {len(documents)}" for kind, documents in written.items()))
    return 1 if wrong else 0


sys.exit(main(*sys.argv[1:]))
