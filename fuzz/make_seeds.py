#!/usr/bin/env python3
"""Makes the first inputs of the fuzz targets from the test inputs, the sample and the schema files.

Usage: make_seeds.py SOURCE-FOLDER SCHEMA-FOLDER OUTPUT-FOLDER
The output folder gets one folder per target.
"""

import hashlib
import pathlib
import shutil
import sys

LINES_PER_SEED = 12

SETTINGS = [
    b"",
    b"FILESTOCHECK=<ARRAY>\r\none.ags\r\ndata\\two.ags\r\n</ARRAY>\r\nLOGFILE=\"log.txt\"\r\n",
    b"MESGLIST_SCANGROUPINGS=TRUE\r\nMESGLIST_LINENUMBERINFILE=no\r\nMESGLIST_SEVERITY=1\r\n"
    b"SUPPRESSFYIMESGS=T\r\n",
    b"\xef\xbb\xbfCUSTOMDICTIONARY=C:\\data\\my dict.gas\nSHOWDATASTATS = on\n = \n==\n",
    b"filestocheck=one.ags\rsettings=<array>\rseverity=y\r</array>\rFILESTOCHECK=<ARRAY>\r",
    b"one.ags\n/SETTINGSFILE=own.txt\nand more\n--log\nout.txt\n\"/x/y\"\n",
]

EARLIER_RUN = b"""{"format": "quorvane-findings", "formatVersion": 1, "program": {"version": "1"},
 "files": [{"path": "a.ags", "checkedToTheEnd": true, "findings": [
  {"id": "keys.repeated", "rule": "6b", "severity": "error", "line": 109, "column": null,
   "group": "ISPT", "key": "BH2,6.00", "heading": "ISPT_TOP", "text": "\\u00e4 \\"x\\""}]}]}
"""

WAIVERS = b"""# agreed
keys.repeated | a.ags | ISPT | BH2\\|6.00 | * | two tests

units.unused|*|UNIT||\\*|our list
"""


def write(folder, content):
    """Keeps a content under a name made of its bytes, once."""
    folder.mkdir(parents=True, exist_ok=True)
    (folder / hashlib.sha1(content).hexdigest()).write_bytes(content)


def is_ags4(content):
    return b'"GROUP"' in content.upper()


def add_data_file(output, content):
    kind = "check_ags4" if is_ags4(content) else "check_ags3"
    write(output / kind, content)
    write(output / "parse", content)
    lines = content.replace(b"\r", b"\n").split(b"\n")
    lines = [line for line in lines if line]
    for start in range(0, len(lines), LINES_PER_SEED):
        # The first byte tells the target what to read the lines as.
        block = b"\n".join(lines[start : start + LINES_PER_SEED])
        write(output / "fields", bytes([0x30 + 8 * is_ags4(content) + start % 8]) + block)


def main():
    source, schemas, output = (pathlib.Path(argument) for argument in sys.argv[1:4])
    shutil.rmtree(output, ignore_errors=True)
    data_files = sorted(source.glob("tests/golden/*/*.ags")) + sorted(source.glob("samples/*.ags"))
    for path in data_files:
        add_data_file(output, path.read_bytes())
    for path in sorted(schemas.glob("*.gas")) + sorted(source.glob("tests/golden/*/*.gas")):
        content = path.read_bytes()
        write(output / "schema", content)
        # The beginning alone: a group or two in either form are quicker to change than a whole one.
        head = b"\r\n".join(content.splitlines()[:60]) + b"\r\n"
        write(output / "schema", head)
        write(output / "schema", head.replace(b"for AGS", b"for AGS,", 1))
    for content in SETTINGS:
        write(output / "settings", content)
    write(output / "earlier_run", EARLIER_RUN)
    write(output / "waivers", WAIVERS)
    if not data_files:
        sys.exit("there are no data files to begin with")


if __name__ == "__main__":
    main()
