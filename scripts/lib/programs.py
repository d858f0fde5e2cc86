"""The test programs of a build folder, run whole: for scripts that run them many times."""

import dataclasses
import json
import os
import pathlib
import subprocess


@dataclasses.dataclass
class Program:
    path: pathlib.Path
    environment: dict

    @property
    def name(self):
        return self.path.name

    def run(self, *arguments, environment=None, **options):
        """As subprocess.run, in the program's own folder."""
        return subprocess.run([self.path, *arguments], cwd=self.path.parent, stdin=subprocess.DEVNULL,
                              env={**os.environ, **self.environment, **(environment or {})}, check=False, **options)


def test_programs(build):
    """Every program of GoogleTest that ctest runs, in the order that it runs them, but for those that count instructions."""
    listed = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], check=True, capture_output=True)
    programs = {}
    for test in json.loads(listed.stdout)["tests"]:
        command = test.get("command", [])
        if len(command) < 2 or not command[1].startswith("--gtest_filter") or command[0].endswith("_costs"):
            continue
        properties = {each["name"]: each["value"] for each in test["properties"]}
        environment = dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
        programs.setdefault(command[0], Program(pathlib.Path(command[0]), environment))
    return list(programs.values())
