#!/usr/bin/python3
"""Tries the XML Schemas on what the tests of dxmd encoded: written_test.py SCHEMAS FOLDER.

Each file in the folder has a line of JSON for each message: its kind and its XML, which is empty when it was refused.
"""

import json
import pathlib
import sys

from documents import namespace, refused_by_xmllint

# What the tests set, whatever the library and the schemas were built for.
QUERY_SERVICE = "urn:dxmd:query-service:api:1"


def main(schemas, folder):
    schemas = pathlib.Path(schemas)
    built = namespace(schemas, "execute")
    kinds = sorted(path.stem for path in schemas.glob("*.xsd"))
    names = {kind.lower(): kind for kind in kinds}  # the tool takes them in any case
    written = {kind: set() for kind in kinds}
    for file in pathlib.Path(folder).iterdir():
        for line in file.read_bytes().splitlines():
            case = json.loads(line)
            if case["xml"]:
                document = case["xml"].replace(f'xmlns="{QUERY_SERVICE}"', f'xmlns="{built}"')
                written[names[case["kind"].lower()]].add(document)
    wrong = 0
    for kind, documents in written.items():
        for document, said in refused_by_xmllint(schemas, kind, documents).items():
            print(f"{kind}: {said}: {document}")
            wrong += 1
    print(", ".join(f"{kind} {len(documents)}" for kind, documents in written.items()))
    return 1 if wrong else 0


sys.exit(main(sys.argv[1], sys.argv[2]))
