#!/usr/bin/env python3
"""Runs clang-tidy over the sources of a build folder and remembers, by a hash of all that a file includes, which
of them came out clean: only what changed is looked at again.

usage: tidy.py BUILD_FOLDER [JOBS [FOLDER...]]   all of src and tools, or these folders

The cache: $XDG_CACHE_HOME/valmerix-tidy, ~/.cache by default.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "valmerix-tidy"
RULES = (ROOT / ".clang-tidy").read_bytes() + subprocess.run(
    ["clang-tidy", "--version"], check=True, capture_output=True).stdout


def key(entry):
    """Hash of the preprocessed source, comments (they can silence a rule) included, paths excluded."""
    command, skip = [], False
    for word in shlex.split(entry["command"]):
        if skip or word in ("-c", "-o"):
            skip = word == "-o"
        elif not word.endswith("ccache"):
            command.append(word)
    text = subprocess.run(command + ["-E", "-P", "-CC"], cwd=entry["directory"], check=True, capture_output=True).stdout
    return hashlib.sha256(RULES + pathlib.Path(entry["file"]).read_bytes() + text).hexdigest()


def look(build, entry):
    """(file, findings or None); remembers a clean file."""
    mark = CACHE / key(entry)
    if mark.exists():
        mark.touch()
        return entry["file"], None
    run = subprocess.run(["clang-tidy", "-quiet", "-p", build, entry["file"]], capture_output=True, text=True)
    if run.returncode == 0 and not run.stdout.strip():
        mark.touch()
        return entry["file"], None
    return entry["file"], run.stdout or run.stderr


def main():
    build, jobs = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else os.cpu_count()
    CACHE.mkdir(parents=True, exist_ok=True)
    folders = [ROOT / folder for folder in sys.argv[3:] or ("src", "tools")]
    entries = {e["file"]: e for e in json.loads(pathlib.Path(build, "compile_commands.json").read_text())
               if any(pathlib.Path(e["file"]).is_relative_to(folder) for folder in folders)}
    bad = 0
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for file, findings in pool.map(lambda e: look(build, e), entries.values()):
            if findings is not None:
                bad += 1
                print(findings, flush=True)
    print("%d files, %d with findings" % (len(entries), bad))
    return 1 if bad or not entries else 0


sys.exit(main())
