"""Makes the archive with which the desktop program can be linked again, with a Qt of one's own.

Usage: relink_kit.py BUILD_FOLDER ARCHIVE

The archive gets every object file and library that the program is linked from, under numbered
names, and a script with the link command, which needs nothing but the compiler.
"""

import pathlib
import shlex
import subprocess
import sys
import zipfile

LINKED_SUFFIXES = {".a", ".obj", ".o", ".res"}
SCRIPT_HEAD = """#!/bin/sh
# Links quorvane.exe from the files of this folder. Needs Debian's g++-mingw-w64-x86-64-posix.
# To use another Qt put its libraries in the places of those here, or edit the command.
set -e
cd "$(dirname "$0")"
"""


def link_command(build):
    """The words of the command that links the program, in the order of the build's own."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "commands", "-s", "bin/quorvane.exe"],
                             check=True, capture_output=True, text=True).stdout
    commands = [part for part in listing.splitlines()[-1].split(" && ") if " -o " in part]
    if len(commands) != 1:
        sys.exit("The build has no single command that links bin/quorvane.exe.")
    words = []
    for word in shlex.split(commands[0]):
        if word.startswith("@"):  # a file of further words, written when the command runs
            words += shlex.split((build / word[1:]).read_text())
        else:
            words.append(word)
    return words


def write_kit(build, archive):
    words = []
    kept = {}
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED) as kit:
        for word in link_command(build):
            path = build / word
            if path.suffix in LINKED_SUFFIXES and path.is_file():
                if word not in kept:
                    kept[word] = f"linked/{len(kept):03}-{path.name}"
                    kit.write(path, kept[word])
                word = kept[word]
            elif word == "bin/quorvane.exe":
                word = "quorvane.exe"
            elif word.startswith("-Wl,--out-implib,"):
                continue  # a library for those who link with the program: nobody does
            elif word.startswith("/") and not pathlib.Path(word).name.startswith("x86_64-w64-"):
                sys.exit(f"The command names {word}, which is neither object file nor library.")
            elif word.startswith("/"):
                word = pathlib.Path(word).name  # the compiler, wherever it stands
            words.append(shlex.quote(word))
        script = zipfile.ZipInfo("relink")
        script.external_attr = 0o755 << 16
        kit.writestr(script, SCRIPT_HEAD + " ".join(words) + "\n")


if __name__ == "__main__":
    write_kit(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2])
