"""Decodes a reply of 1,000,000 rows of 4 values with dxmd, and tells its processor time as a share of what
`xmllint --format` takes for the same file, and its peak memory. Fails where a share is not below 1, or the memory not
below 64 MB.

Usage: large_reply.py DXMD FOLDER
"""

import os
import subprocess
import sys

ROWS = 1_000_000
MOST_MEMORY_MB = 64
RUNS = 3


def write_reply(path):
    with open(path, "w", encoding="utf-8") as reply:
        reply.write("<response><columnList>")
        for name in ("ID", "Region", "Revenue", "Remark"):
            reply.write(f'<column name="{name}"/>')
        reply.write("</columnList><resultData>")
        for i in range(ROWS):
            reply.write(
                f'<row><value v="{i:07d}"/><value v="Region number {i % 977:05d}"/>'
                f'<value v="{i * 1.25:012.2f}"/><value v="a &amp; b {i % 13}"/></row>'
            )
        reply.write("</resultData></response>\n")


def measured(command):
    """Seconds of processor time, and megabytes."""
    with open(os.devnull, "wb") as nothing:
        child = subprocess.Popen(command, stdout=nothing)
        _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        sys.exit(f"{command[0]} failed")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def main():
    dxmd, folder = sys.argv[1:]
    reply = os.path.join(folder, "large_reply.xml")
    write_reply(reply)
    commands = {"xmllint --format": ["xmllint", "--format", reply]}
    for name in ("csv", "ndjson", "json"):
        commands[f"dxmd --format {name}"] = [dxmd, "decode", "response", reply, "--format", name]
    seconds = dict.fromkeys(commands, float("inf"))
    memory = dict.fromkeys(commands, 0)
    for _ in range(RUNS):  # in turn, so that what else the machine does meets all of them
        for name, command in commands.items():
            time, peak = measured(command)
            seconds[name] = min(seconds[name], time)
            memory[name] = max(memory[name], peak)
    os.remove(reply)

    baseline = seconds["xmllint --format"]
    print("| a reply of 1,000,000 rows | processor time | peak memory |")
    print("|---|---:|---:|")
    for name in commands:
        print(f"| {name} | {seconds[name] / baseline:.2f} | {memory[name]:.0f} MB |")
    for name in list(commands)[1:]:
        if seconds[name] >= baseline or memory[name] >= MOST_MEMORY_MB:
            sys.exit(f"{name} takes too much")


main()
