#!/usr/bin/env python3
"""Writes the AGS 4 schema files from the facts about the published editions.

    make_schemas.py FACTS_DIR OUT_DIR

FACTS_DIR holds one CSV per edition (see ags4/README.md); OUT_DIR receives one
schema file per edition and is made when it does not exist. The same facts
always give the same bytes.

Facts that a schema file cannot carry, or that contradict what the schemas
rely on, end the run with status 1 and a message that names the file and the
line. All schemas are made before the first one is written, so facts that are
refused leave OUT_DIR as it was.
"""

import csv
import os
import re
import sys
from collections import namedtuple

# Schema file and the edition it holds.
SCHEMAS = (
    ("ags4 dict.gas", "4.0.3"),
    ("ags404 dict.gas", "4.0.4"),
    ("ags41 dict.gas", "4.1"),
    ("ags411 dict.gas", "4.1.1"),
    ("ags42 dict.gas", "4.2"),
)

# The loader compares this line as a whole: nothing may follow it.
FIRST_LINE = "'Vexo Schema for AGS"

LOCATION_GROUP = "LOCA"
LOCATION_KEY = "LOCA_ID"
REQUIRED_GROUPS = ("PROJ", "TRAN", "TYPE", "UNIT")

# The heading whose type is left out of the schema, and that type.
TYPE_LIST_HEADING = ("DICT", "DICT_DTYP")
TYPE_LIST_TYPE = "PT"

# Headings to which the published edition gives no type: (edition, heading).
PUBLISHED_WITHOUT_TYPE = {("4.1", "RSCH_ORN")}

COLUMNS = ["group", "parent", "heading", "status", "type", "unit"]

# status -> (is a key heading, is a required field)
STATUSES = {
    "KEY": (True, False),
    "REQUIRED": (False, True),
    "KEY+REQUIRED": (True, True),
    "OTHER": (False, False),
    "DEPRECATED": (False, False),
}

GROUP_NAME = re.compile(r"[A-Z0-9]{1,4}")
HEADING_NAME = re.compile(r"[A-Z0-9]{1,4}_[A-Z0-9]{1,4}")
TYPE_CODE = re.compile(r"[0-9]*[A-Z]+")

# "," separates the fields of a line, "!" the items of the loaded dictionary.
SEPARATORS = ",!"

# Schema files are single-byte text; the micro sign is the byte B5 in it.
ENCODING = "cp1252"

Heading = namedtuple("Heading", "name is_key is_required type unit line")


class FactsError(Exception):
    """Facts that cannot become a schema file."""


class Group:
    """One group of an edition, with its headings in dictionary order."""

    def __init__(self, name, parent, line):
        self.name = name
        self.parent = parent
        self.line = line
        self.headings = []

    def keys(self):
        return [heading.name for heading in self.headings if heading.is_key]


def require(condition, line, text):
    if not condition:
        raise FactsError("line %d: %s" % (line, text))


def check_text(text, column, line):
    """Refuses text that would come out of the schema other than it went in."""
    shown = ascii(text)
    for separator in SEPARATORS:
        require(separator not in text, line,
                "%s %s holds the separator '%s'" % (column, shown, separator))
    require(text.isprintable(), line, "%s %s holds a control character" % (column, shown))
    require(text == text.strip(), line, "%s %s begins or ends with a blank" % (column, shown))
    try:
        text.encode(ENCODING)
    except UnicodeEncodeError:
        require(False, line, "%s %s is not single-byte text" % (column, shown))


def read_heading(row, edition, line):
    """Checks one row of facts on its own and returns its heading."""
    for column in COLUMNS:
        check_text(row[column], column, line)
    group, name, code = row["group"], row["heading"], row["type"]
    require(GROUP_NAME.fullmatch(group), line, "'%s' is no group name" % group)
    require(not row["parent"] or GROUP_NAME.fullmatch(row["parent"]), line,
            "parent '%s' is no group name" % row["parent"])
    require(HEADING_NAME.fullmatch(name), line, "'%s' is no heading name" % name)
    require(row["status"] in STATUSES, line, "unknown status '%s'" % row["status"])
    if code:
        require(TYPE_CODE.fullmatch(code), line, "'%s' is no data type" % code)
    else:
        require((edition, name) in PUBLISHED_WITHOUT_TYPE, line, "%s has no data type" % name)
    is_type_list = (group, name) == TYPE_LIST_HEADING
    require(is_type_list == (code == TYPE_LIST_TYPE), line,
            "%s has the type '%s'; %s alone has, and must have, the type %s"
            % (name, code, TYPE_LIST_HEADING[1], TYPE_LIST_TYPE))
    is_key, is_required = STATUSES[row["status"]]
    return Heading(name, is_key, is_required, "" if is_type_list else code, row["unit"], line)


def read_rows(path):
    """Yields (line number, row) for every row of a facts file."""
    with open(path, encoding="utf-8", newline="") as stream:
        reader = csv.reader(stream, strict=True)
        try:
            require(next(reader, None) == COLUMNS, 1,
                    "the columns must be " + ",".join(COLUMNS))
            for fields in reader:
                require(len(fields) == len(COLUMNS), reader.line_num,
                        "%d fields instead of %d" % (len(fields), len(COLUMNS)))
                yield reader.line_num, dict(zip(COLUMNS, fields))
        except csv.Error as error:
            raise FactsError("line %d: %s" % (reader.line_num, error)) from None
        except UnicodeDecodeError as error:
            raise FactsError("not UTF-8: %s" % error) from None


def read_groups(path, edition):
    """Returns the groups of an edition by name, in dictionary order."""
    groups = {}
    group = None
    for line, row in read_rows(path):
        heading = read_heading(row, edition, line)
        if group is None or group.name != row["group"]:
            require(row["group"] not in groups, line,
                    "group %s stands in two places" % row["group"])
            group = Group(row["group"], row["parent"], line)
            groups[group.name] = group
        require(row["parent"] == group.parent, line,
                "group %s has the parents '%s' and '%s'"
                % (group.name, group.parent, row["parent"]))
        group.headings.append(heading)
    return groups


def check_headings(group):
    """The loader takes the first headings of a group, by number, for its key."""
    seen = set()
    for heading in group.headings:
        require(heading.name not in seen, heading.line,
                "heading %s is repeated in group %s" % (heading.name, group.name))
        seen.add(heading.name)
    keys = group.keys()
    require(keys, group.line, "group %s has no key heading" % group.name)
    for key, heading in zip(keys, group.headings):
        require(heading.is_key, heading.line,
                "the key headings of group %s do not lead: %s stands before %s"
                % (group.name, heading.name, key))


def resolve_parent(group, groups):
    """Returns the parent that goes into the schema.

    Records are compared with those of the parent group by the parent's key,
    so a group must carry that key. The location group carries none of its
    parent's: it goes without a parent.
    """
    if not group.parent:
        return ""
    require(group.parent in groups and group.parent != group.name, group.line,
            "parent '%s' of group %s is no other group of the edition"
            % (group.parent, group.name))
    keys = group.keys()
    missing = [key for key in groups[group.parent].keys() if key not in keys]
    if group.name == LOCATION_GROUP:
        require(missing, group.line,
                "group %s carries the key of %s, so its parent must not be dropped"
                % (group.name, group.parent))
        return ""
    require(not missing, group.line, "group %s lacks the key %s of its parent %s"
            % (group.name, ",".join(missing), group.parent))
    return group.parent


def check_edition(groups):
    for name in (LOCATION_GROUP,) + REQUIRED_GROUPS:
        require(name in groups, 1, "the edition has no group %s" % name)
    location = groups[LOCATION_GROUP]
    require(location.headings[0].name == LOCATION_KEY, location.line,
            "%s does not begin with %s" % (LOCATION_GROUP, LOCATION_KEY))
    for group in groups.values():
        check_headings(group)


def group_lines(group, groups):
    """The five lines of a group."""
    lines = [
        group.name,
        "%s,%d" % (resolve_parent(group, groups), len(group.keys())),
        ",".join(heading.name for heading in group.headings),
        ",".join(heading.unit for heading in group.headings),
        ",".join(heading.type for heading in group.headings),
    ]
    for line in lines:
        require(line and not line.startswith("'"), group.line,
                "a line of group %s would be skipped as blank or as a comment: \"%s\""
                % (group.name, line))
    return lines


def make_schema(path, edition):
    """Returns the bytes of the schema file of one edition."""
    groups = read_groups(path, edition)
    check_edition(groups)
    lines = [
        FIRST_LINE,
        "'Edition %s of the AGS 4 data dictionary" % edition,
        "'Made by make_schemas.py from %s.csv" % edition,
        LOCATION_GROUP,
        "",
        LOCATION_KEY,
        "",
    ]
    lines.extend(REQUIRED_GROUPS)
    lines.append("")
    for group in groups.values():
        lines.extend("%s.%s" % (group.name, heading.name)
                     for heading in group.headings if heading.is_required)
    for group in groups.values():
        lines.append("")
        lines.extend(group_lines(group, groups))
    return "".join(line + "\r\n" for line in lines).encode(ENCODING)


def main(arguments):
    if len(arguments) != 2:
        print("usage: make_schemas.py FACTS_DIR OUT_DIR", file=sys.stderr)
        return 2
    facts_dir, out_dir = arguments
    schemas = []
    for name, edition in SCHEMAS:
        facts = edition + ".csv"
        try:
            schemas.append((name, make_schema(os.path.join(facts_dir, facts), edition)))
        except FactsError as error:
            print("%s: %s" % (facts, error), file=sys.stderr)
            return 1
        except OSError as error:
            print("make_schemas.py: %s" % error, file=sys.stderr)
            return 1
    try:
        os.makedirs(out_dir, exist_ok=True)
        for name, content in schemas:
            with open(os.path.join(out_dir, name), "wb") as stream:
                stream.write(content)
    except OSError as error:
        print("make_schemas.py: %s" % error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
