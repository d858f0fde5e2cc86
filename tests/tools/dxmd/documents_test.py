#!/usr/bin/python3
"""Holds what is written about dxmd to what it does: documents_test.py DXMD SOURCE.

Runs the blocks of docs/command-line.md, and those of README.md that run dxmd alone, in a folder with the files of
examples/exchange and a service at $SERVICE that answers them. Standard output and error of a block are what the block of
text behind it says, if there is one. The table of messages in README.md is what `dxmd kinds --json` says.
"""

import difflib
import http.server
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import textwrap
import threading

BLOCK = re.compile(r"^(?P<indent> *)```(?P<language>\w+)\n(?P<text>.*?)^ *```$", re.MULTILINE | re.DOTALL)


class Service(http.server.BaseHTTPRequestHandler):
    """Answers an execute command with the reply of the example, anything else with HTTP 400."""

    reply = b""

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        known = body.startswith(b"<command ") and b"<execute>" in body
        answer = self.reply if known else b"<fault/>"
        self.send_response(200 if known else 400)
        self.send_header("Content-Length", str(len(answer)))
        self.end_headers()
        self.wfile.write(answer)

    def log_message(self, *_):
        pass


def blocks(text):
    """The blocks to run, each with its line, its language and the output that it should have, or None."""
    found = [(match, textwrap.dedent(match["text"])) for match in BLOCK.finditer(text)]
    for (match, block), (after, expected) in zip(found, found[1:] + [(None, "")]):
        if match["language"] not in ("sh", "python"):
            continue
        follows = after and after["language"] == "text" and not text[match.end() : after.start()].strip()
        yield text.count("\n", 0, match.start()) + 1, match["language"], block, expected if follows else None


def run(language, block, folder, environment):
    command = [sys.executable, "-"] if language == "python" else ["bash", "-eu", "-s"]
    done = subprocess.run(
        command, input=block.encode(), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, cwd=folder, env=environment
    )
    return done.returncode, done.stdout.decode()


def differs(name, expected, found):
    if expected == found:
        return 0
    print("".join(difflib.unified_diff(expected.splitlines(True), found.splitlines(True), name, "what dxmd says")))
    return 1


def messages(dxmd):
    """The table of messages as README.md should have it."""
    lines = ["| message | class | library | header | kind | reply |", "|---|---|---|---|---|---|"]
    for kind in json.loads(subprocess.check_output([dxmd, "kinds", "--json"])):
        does = [verb for verb, key in (("writes", "libraryWrites"), ("reads", "libraryReads")) if kind[key]]
        reply = f"`{kind['reply']}`" if "reply" in kind else ""
        header = kind["header"].strip("<>")
        lines.append(
            f"| {kind['summary']} | `{kind['class']}` | {', '.join(does)} | `{header}` | `{kind['kind']}` | {reply} |"
        )
    return "".join(line.replace("|  |", "| |") + "\n" for line in lines)


def main(dxmd, source):
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Service)
    Service.reply = (source / "examples/exchange/reply.xml").read_bytes()
    threading.Thread(target=server.serve_forever, daemon=True).start()
    wrong = 0
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(source / "examples/exchange", folder, dirs_exist_ok=True)
        shutil.copy(source / "examples/exchange/request.xml", pathlib.Path(folder) / "captured.xml")
        programs = pathlib.Path(folder) / "bin"
        programs.mkdir()
        (programs / "dxmd").symlink_to(dxmd)
        environment = {name: value for name, value in os.environ.items() if not name.lower().endswith("_proxy")}
        environment["PATH"] = f"{programs}:{environment['PATH']}"
        environment["SERVICE"] = f"http://127.0.0.1:{server.server_port}/"

        readme = (source / "README.md").read_text()
        page = (source / "docs/command-line.md").read_text()
        own = [block for block in blocks(readme) if all(line.startswith("dxmd ") for line in block[2].splitlines())]
        tried = [("README.md", *block) for block in own] + [("docs/command-line.md", *block) for block in blocks(page)]
        for file, line, language, block, expected in tried:
            status, found = run(language, block, folder, environment)
            if status != 0:
                print(f"{file}:{line}: ends with status {status}\n{found}")
                wrong += 1
            elif expected is not None:
                wrong += differs(f"{file}:{line}", expected, found)
        print(f"{len(own)} of README.md, {len(tried) - len(own)} blocks of docs/command-line.md")
        if not own or len(own) == len(tried):
            wrong += 1

    table = re.search(r"^\| message \|.*?\n(?!\|)", readme, re.MULTILINE | re.DOTALL)
    wrong += differs("README.md", table[0] if table else "", messages(dxmd))
    return 1 if wrong else 0


sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
