#!/usr/bin/python3
"""Finds classes with more than 30 member declarations, which have more than one job.

  scripts/members.py                           all of src/ and app/
  scripts/members.py --only src/device app     these folders or files
  scripts/members.py --list                    the count of every class, largest first

Functions, constructors, data members, nested types and using-declarations count one each, `int a, b;` counts two.
Friends, access labels, static assertions and macros do not count, and neither do members of nested types, which are
classes of their own."""

import argparse
import re
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LIMIT = 30

# Classes that may have more, and why.
EXCEPTIONS = {
    "CAdvanceDlg": "hosts know its names",
    "CPjtInterface": "one function for each operation, all known to hosts",
    "CSetupType5TabDlg": "hosts know its names: one handler for each control",
}

TOKEN = re.compile(r"""
    (?P<skip>\s+ | //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:[^\n\\]|\\.)*)
  | (?P<text>(?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)" | (?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"
            | (?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
  | (?P<word>[A-Za-z_]\w* | \d(?:[\w.]|'\w)*)
  | (?P<sign>:: | -> | \[\[ | \]\] | <=> | [-+*/%&|^!=<>]= | .)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

TYPES = {"class", "struct", "union", "enum"}
CLOSING = {"(": ")", "[": "]", "[[": "]]", "{": "}"}
UNCOUNTED = {"friend", "static_assert"}


@dataclass
class Token:
    text: str
    line: int
    isWord: bool


@dataclass
class Class:
    file: str
    line: int
    name: str
    members: int


def tokens_of(text):
    tokens, line, at = [], 1, 0
    for match in TOKEN.finditer(text):
        line += text.count("\n", at, match.start())
        at = match.start()
        if match.lastgroup == "skip" or match["skip"] is not None:
            continue
        tokens.append(Token(match[0] if match["text"] is None else '""', line, match["word"] is not None))
    return tokens


def closing_of(tokens, at):
    """The index of the bracket that closes the one at `at`."""
    depth, opening = 0, tokens[at].text
    for index in range(at, len(tokens)):
        depth += (tokens[index].text == opening) - (tokens[index].text == CLOSING[opening])
        if depth == 0:
            return index
    raise SystemExit(f"no {CLOSING[opening]} for the {opening} in line {tokens[at].line}")


def body_of(tokens, at):
    """For the `class` or `struct` at `at`, the index of its body's bracket and its name; None without a body."""
    if at > 0 and tokens[at - 1].text in ("enum", "<", ",", "friend"):
        return None  # of an enumeration, or a template's parameter
    name, index, inBases, angles = "", at + 1, False, 0
    while index < len(tokens):
        token = tokens[index]
        if token.text == "{" and angles == 0:
            return index, name or "(unnamed)"
        if token.text in ("[[", "("):
            index = closing_of(tokens, index)
        elif token.text in "<>":
            angles += 1 if token.text == "<" else -1
            if angles < 0:
                return None
        elif angles == 0 and not inBases:
            if token.text == ":":
                inBases = True
            elif token.isWord:
                name = name if token.text in ("final", "alignas") else token.text
            elif token.text != "::":
                return None
        elif token.text == ";":
            return None
        index += 1
    return None


def is_label(tokens, at):
    """Whether an access label like `public:` or `public slots:` starts here; its length."""
    words = 0
    while at + words < len(tokens) and tokens[at + words].isWord and words < 3:
        words += 1
    isLabel = words in (1, 2) and at + words < len(tokens) and tokens[at + words].text == ":"
    known = tokens[at].text in ("public", "protected", "private", "signals", "Q_SIGNALS")
    return words + 1 if isLabel and known else 0


def declaration(tokens, at, end):
    """The index behind the declaration at `at`, and how many members it declares."""
    first = tokens[at].text
    if first == "template" and tokens[at + 1].text == "<":
        depth, at = 0, at + 1
        while True:
            depth += (tokens[at].text == "<") - (tokens[at].text == ">")
            at += 1
            if depth == 0:
                return declaration(tokens, at, end)
    isType = first in TYPES or (first == "typedef")
    isUsing = first == "using"
    counted, names, isFunction, isAssigned, angles = first not in UNCOUNTED, 1, False, False, 0
    hasBody, index = False, at
    while index < end:
        text = tokens[index].text
        before = tokens[index - 1]
        if text == ";":
            if isType and hasBody:  # `struct {…} name;` declares a type and a member
                names = 1 + (tokens[index - 1].text != "}")
            return index + 1, names if counted else 0
        if text == "<" and (before.isWord or before.text == ">") and before.text != "operator":
            angles += 1
        elif text == ">" and angles > 0:
            angles -= 1
        elif text == "(":
            isDecltype = before.text in ("decltype", "alignas", "explicit", "noexcept")
            if angles == 0 and not isAssigned and not isDecltype:
                isFunction = True
            index = closing_of(tokens, index)
        elif text in ("[", "[["):
            index = closing_of(tokens, index)
        elif text == "{":
            hasBody = True
            index = closing_of(tokens, index)
            following = tokens[index + 1].text
            if isFunction and not isType and not isUsing and following not in (";", ",", "{"):
                return index + 1, 1 if counted else 0
        elif text == "=" and angles == 0 and before.text != "operator":
            isAssigned = True
        elif text == "," and angles == 0 and not isFunction and not isType and not isUsing:
            names += 1
        index += 1
    return end, 0


def count_members(tokens, opening):
    end = closing_of(tokens, opening)
    index, members = opening + 1, 0
    while index < end:
        token = tokens[index]
        if token.text == ";":
            index += 1
        elif label := is_label(tokens, index):
            index += label
        elif re.fullmatch(r"Q_[A-Z_]+", token.text):
            index += 1
            if tokens[index].text == "(":
                index = closing_of(tokens, index) + 1
        else:
            index, found = declaration(tokens, index, end)
            members += found
    return members


def classes_in(file):
    try:
        tokens = tokens_of((ROOT / file).read_text())
        for index, token in enumerate(tokens):
            if token.text in ("class", "struct", "union"):
                if found := body_of(tokens, index):
                    yield Class(file, token.line, found[1], count_members(tokens, found[0]))
    except SystemExit as error:
        raise SystemExit(f"{file}: {error}") from None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--only", nargs="+", metavar="PATH", default=["src", "app"], help="folders or files")
    parser.add_argument("--list", action="store_true", help="list every class with its count")
    arguments = parser.parse_args()
    files = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", *arguments.only],
                           cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    classes = [found for file in sorted(set(files)) if file.endswith((".h", ".cpp")) and (ROOT / file).exists()
               for found in classes_in(file)]
    classes.sort(key=lambda found: -found.members)
    over = [found for found in classes if found.members > LIMIT and found.name not in EXCEPTIONS]
    for found in classes if arguments.list else over:
        print(f"{found.file}:{found.line}: {found.name} has {found.members} member declarations")
    if not classes:
        sys.exit(f"no class in {' '.join(arguments.only)}")
    if arguments.list:
        return
    if spared := [found.name for found in classes if found.name in EXCEPTIONS and found.members <= LIMIT]:
        sys.exit(f"no longer exceptions, to be removed from this script: {' '.join(spared)}")
    if over:
        sys.exit(f"More than {LIMIT} member declarations: split these classes by what they do.")


if __name__ == "__main__":
    main()
