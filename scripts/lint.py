#!/usr/bin/env python3
"""Runs clang-tidy over the sources, but for the benchmarks, whose library's idioms are not for it.

lint.py                     all sources
lint.py --budget SECONDS    those changed last come first; those not reached in the time are counted, and left

A source that passed is remembered by its content, that of all headers of the project that it reads, and the rules, so
that an unchanged tree costs nothing. What a source reads is taken from the build, which therefore comes first; the
sources for Windows are read with the headers of the compiler for Windows, where build/windows is there.
"""
import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import time

HOUSE = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME", pathlib.Path.home() / ".cache")) / "qorplus" / "lint"
FOR_WINDOWS = re.compile(r"(^|/)(windows|excel)/(?!native/)")
# clang-tidy finds neither the other compiler's headers nor a meaning in what only that compiler knows.
COMPILER = "x86_64-w64-mingw32"
PRECOMPILED = re.compile(r"-Winvalid-pch|-fpch-preprocess|-include|\S+cmake_pch\.hxx")


def output_of(*command):
    return subprocess.run(command, cwd=HOUSE, capture_output=True, text=True, check=True).stdout


def headers_of_windows():
    listing = subprocess.run(
        [f"{COMPILER}-g++-posix", "-std=c++20", "-E", "-v", "-x", "c++", "/dev/null"], capture_output=True, text=True
    ).stderr
    folders = re.search(r"search starts here:\n((?: .*\n)+)End", listing.split('#include <...>')[1])[1].split()
    return [f"--target={COMPILER}", "-nostdinc", "-nostdinc++", *(a for f in folders for a in ("-isystem", f))]


class Build:
    """The commands of one build folder as clang-tidy needs them, and what each source reads."""

    def __init__(self, preset):
        self.folder = HOUSE / "build" / preset
        extra = headers_of_windows() if preset == "windows" else []
        self.arguments = [f"--extra-arg={argument}" for argument in [*extra, "-Wno-unknown-warning-option"]]
        self.database = HOUSE / "build" / "lint" / preset
        self.database.mkdir(parents=True, exist_ok=True)
        commands = json.loads((self.folder / "compile_commands.json").read_text())
        self.outputs = {}
        for entry in commands:
            words = shlex.split(entry["command"])
            self.outputs[os.path.relpath(entry["file"], HOUSE)] = words[words.index("-o") + 1]
            entry["command"] = shlex.join(word for word in words if not PRECOMPILED.fullmatch(word))
        (self.database / "compile_commands.json").write_text(json.dumps(commands))
        self.reads = {}
        for block in output_of("ninja", "-C", str(self.folder), "-t", "deps").split("\n\n"):
            target, _, files = block.partition(": #deps")
            names = (os.path.normpath(self.folder / line.strip()) for line in files.splitlines()[1:])
            self.reads[target.split("\n")[-1]] = [n for n in names if n.startswith(f"{HOUSE}/") and "/build/" not in n]

    def key(self, source, rules):
        """None for a source that this build does not have, or that changed in what it reads since it was built."""
        if source not in self.outputs:
            return None
        digest = hashlib.sha256(rules)
        try:
            for name in sorted({str(HOUSE / source), *self.reads.get(self.outputs[source], [])}):
                digest.update(pathlib.Path(name).read_bytes())
        except FileNotFoundError:
            return None
        return digest.hexdigest()[:40]


def lint(source, build, key):
    run = subprocess.run(
        ["clang-tidy", "--quiet", *build.arguments, "-p", str(build.database), source],
        cwd=HOUSE, capture_output=True, text=True,
    )
    if run.returncode == 0:
        (CACHE / key).touch()
        return ""
    return run.stdout or run.stderr


def newest_first(sources):
    places = {}
    for name in output_of("git", "log", "-n", "200", "--format=", "--name-only").splitlines():
        places.setdefault(name, len(places))
    return sorted(sources, key=lambda source: places.get(source, len(places)))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--budget", type=float, default=float("inf"), help="seconds")
    end = time.monotonic() + parser.parse_args().budget
    CACHE.mkdir(parents=True, exist_ok=True)
    builds = {preset: Build(preset) for preset in ("release", "windows") if (HOUSE / "build" / preset).is_dir()}
    rules = (HOUSE / ".clang-tidy").read_bytes()
    waiting, unbuilt = [], 0
    for source in newest_first(output_of("git", "ls-files", "*.cpp", ":!bench").splitlines()):
        build = builds.get("windows" if FOR_WINDOWS.search(source) else "release")
        key = build and build.key(source, rules)
        if not key:
            unbuilt += 1
        elif not (CACHE / key).exists():
            waiting.append((source, build, key))

    left, findings = 0, []

    def work(job):
        nonlocal left
        if time.monotonic() > end:
            left += 1
        elif finding := lint(*job):
            findings.append(job[0])
            print(finding, flush=True)

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        list(pool.map(work, waiting))
    print(f"{len(waiting) - left} sources read, {len(findings)} with findings; {left} not reached, {unbuilt} not built")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
