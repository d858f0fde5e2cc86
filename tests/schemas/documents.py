"""What the tests of the XML Schemas have in common: documents and the validators that they are tried with."""

import json
import pathlib
import re
import subprocess
import tempfile

XSI = "http://www.w3.org/2001/XMLSchema-instance"


def namespace(schemas, schema):
    """The target namespace of a schema."""
    return re.search('targetNamespace="([^"]*)"', (schemas / f"{schema}.xsd").read_text())[1]


def declared(document, schemas):
    """The document with the prefixes that the document around it declares where it is sent."""
    bus = namespace(schemas, "common/parameterValues")
    return re.sub("^<item", f'<item xmlns:xsi="{XSI}" xmlns:bus="{bus}"', document)


class Folder:
    """Documents of one kind as files, which go with the folder."""

    def __init__(self, documents):
        self._folder = tempfile.TemporaryDirectory()
        path = pathlib.Path(self._folder.name)
        self.documents = {str(path / f"{number}.xml"): text for number, text in enumerate(documents)}
        for name, text in self.documents.items():
            pathlib.Path(name).write_bytes(text.encode())

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._folder.cleanup()


def refused_by_xmllint(schemas, kind, documents):
    """The documents that xmllint refuses, each with what it says first."""
    declarations = {declared(document, schemas): document for document in documents}
    with Folder(declarations) as folder:
        command = ["xmllint", "--nonet", "--noout", "--schema", str(schemas / f"{kind}.xsd"), *folder.documents]
        run = subprocess.run(command, capture_output=True, text=True, check=False)
        refused = {}
        for line in run.stderr.splitlines():
            name, _, said = line.partition(":")
            if name in folder.documents and "Schemas validity error" in said:
                refused.setdefault(declarations[folder.documents[name]], said)
            elif name in folder.documents and "error" in said:
                raise RuntimeError(line)
        if (run.returncode == 0) != (not refused):
            raise RuntimeError(run.stderr)
        return refused


def refused_by_dxmd(dxmd, kind, documents):
    """The documents that `dxmd check` refuses, with Xerces-C, each with what it says first."""
    with Folder(documents) as folder:
        command = [dxmd, "check", kind, "--errors", "json", *folder.documents]
        run = subprocess.run(command, capture_output=True, text=True, check=False)
        if run.stderr:
            raise RuntimeError(run.stderr)
        refused = {}
        for file in json.loads(run.stdout):
            if not file["wellFormed"]:
                raise RuntimeError(file["errors"])
            if not file["fits"]:
                refused[folder.documents[file["file"]]] = file["errors"][0]["message"]
        if (run.returncode == 0) != (not refused):
            raise RuntimeError(f"status {run.returncode}")
        return refused
