"""The mutants of a source file: single small changes that a good test should notice."""

import hashlib
import json
import re
import shlex
from dataclasses import asdict, dataclass
from pathlib import Path

import clang.cindex
from clang.cindex import CursorKind, TokenKind

COMPARISON = {"==": "!=", "!=": "==", "<": ">=", ">=": "<", ">": "<=", "<=": ">"}
BOUNDARY = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
LOGIC = {"&&": "||", "||": "&&"}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "<<": ">>", ">>": "<<",
              "+=": "-=", "-=": "+=", "++": "--", "--": "++"}

FUNCTIONS = {CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR,
             CursorKind.DESTRUCTOR, CursorKind.CONVERSION_FUNCTION, CursorKind.FUNCTION_TEMPLATE,
             CursorKind.LAMBDA_EXPR}
SCOPES = {CursorKind.TRANSLATION_UNIT, CursorKind.NAMESPACE}
JUMPS = {CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT}
BUILT_IN = {CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR,
            CursorKind.UNARY_OPERATOR}


@dataclass
class Mutant:
    """`length` bytes at `offset` become `after`. `function` is the first line of the function around it, or 0."""
    file: str
    line: int
    column: int
    kind: str
    offset: int
    length: int
    before: str
    after: str
    function: int = 0

    @property
    def id(self):
        return f"{self.file}:{self.line}:{self.column}:{self.kind}"


def is_operator(cursor, spelling):
    """Whether the token is an operator here, built in or overloaded, and not a bracket of a template."""
    if cursor.kind in BUILT_IN:
        return True
    overloaded = cursor.kind in (CursorKind.DECL_REF_EXPR, CursorKind.CALL_EXPR)
    return overloaded and spelling in COMPARISON and cursor.spelling.startswith("operator")


class Finder:
    def __init__(self, root, file, unit):
        self.path = str(root / file)
        self.file = file
        self.unit = unit
        self.bytes = (root / file).read_bytes()
        self.found = {}
        self.functions = []  # extents: first offset, last offset, first line
        self.passed_over = []  # what the compiler alone evaluates

    def add(self, kind, start, length, after):
        before = self.bytes[start:start + length].decode()
        line = self.bytes.count(b"\n", 0, start) + 1
        column = start - self.bytes.rfind(b"\n", 0, start)
        mutant = Mutant(self.file, line, column, kind, start, length, before, after)
        self.found.setdefault(mutant.id, mutant)

    def text(self, cursor):
        return self.bytes[cursor.extent.start.offset:cursor.extent.end.offset].decode()

    def written_here(self, cursor):
        """False for what a macro or another file has written."""
        extent = cursor.extent
        return (extent.start.file is not None and extent.start.file.name == self.path
                and extent.end.offset > extent.start.offset)

    def operators(self):
        for token in self.unit.get_tokens(extent=self.unit.cursor.extent):
            if token.kind != TokenKind.PUNCTUATION:
                continue
            spelling, at = token.spelling, token.extent.start.offset
            if spelling == "!" and token.cursor.kind == CursorKind.UNARY_OPERATOR:
                self.add("negation", at, 1, "")
            for kind, table in (("comparison", COMPARISON), ("boundary", BOUNDARY), ("logic", LOGIC),
                                ("arithmetic", ARITHMETIC)):
                if spelling in table and is_operator(token.cursor, spelling):
                    unary = token.cursor.kind == CursorKind.UNARY_OPERATOR
                    if not unary or spelling in ("++", "--"):
                        self.add(kind, at, len(spelling), table[spelling])

    def condition(self, cursor):
        children = list(cursor.get_children())
        tests = [child for child in children if child.kind.is_expression()]
        if not tests or not self.written_here(tests[0]):
            return
        text = self.text(tests[0])
        if children[0].kind in (CursorKind.VAR_DECL, CursorKind.DECL_STMT):
            between = self.bytes[cursor.extent.start.offset:tests[0].extent.start.offset]
            if b";" not in between:
                return  # a declaration is the condition
        if self.bytes[cursor.extent.start.offset:].startswith(b"if constexpr"):
            return
        one = not re.search(r"&&|\|\|", text)
        if one and (text.startswith("!") or re.search(r" (==|!=|<|>|<=|>=) ", text)):
            return  # another operator makes the same
        self.add("negation", tests[0].extent.start.offset, len(text.encode()), f"!({text})")

    def statement(self, cursor):
        drops = (cursor.kind in JUMPS or cursor.kind == CursorKind.RETURN_STMT
                 or cursor.kind.is_expression())
        onlyTime = re.search(r"(\.|->)(reserve|shrink_to_fit)\(", self.text(cursor))
        if drops and not onlyTime and self.written_here(cursor):
            self.add("dropped", cursor.extent.start.offset, len(self.text(cursor).encode()), "(void)0")

    def cell(self, cursor):
        start, text = cursor.extent.start.offset, self.text(cursor)
        if not self.written_here(cursor) or self.bytes[:start].rstrip().endswith(b"["):
            return
        if text in ("true", "false"):
            self.add("cell", start, len(text), "false" if text == "true" else "true")
        elif re.fullmatch(r"(0[xX][0-9A-Fa-f']+|[0-9']+)[uUlL]*", text):
            number = int(text.rstrip("uUlL").replace("'", ""), 0)
            up = number == 0 or hashlib.sha256(f"{self.file}{start}".encode()).digest()[0] % 2 == 0
            changed = number + (1 if up else -1)
            self.add("cell", start, len(text), hex(changed) if text[:2] in ("0x", "0X") else str(changed))

    def walk(self, cursor, table, function):
        for child in cursor.get_children():
            inTable, inFunction = table, function
            kind = child.kind
            if kind == CursorKind.STATIC_ASSERT:
                self.passed_over.append((child.extent.start.offset, child.extent.end.offset))
                continue
            if kind in FUNCTIONS and self.written_here(child):
                inFunction = True
                self.functions.append((child.extent.start.offset, child.extent.end.offset,
                                       child.extent.start.line))
            if kind == CursorKind.VAR_DECL:
                words = self.text(child).split("=")[0].split("{")[0].split()
                inTable = cursor.kind in SCOPES or "constexpr" in words or "static" in words
            if kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.CONDITIONAL_OPERATOR):
                self.condition(child)
            if cursor.kind == CursorKind.COMPOUND_STMT and kind != CursorKind.RETURN_STMT:
                self.statement(child)
            if cursor.kind == CursorKind.IF_STMT and kind in JUMPS | {CursorKind.RETURN_STMT}:
                self.statement(child)
            if inTable and kind in (CursorKind.INTEGER_LITERAL, CursorKind.CXX_BOOL_LITERAL_EXPR):
                self.cell(child)
            self.walk(child, inTable, inFunction)

    def all(self):
        self.operators()
        for child in self.unit.cursor.get_children():
            if child.location.file is not None and child.location.file.name == self.path:
                holder = type("Holder", (), {"kind": CursorKind.TRANSLATION_UNIT,
                                             "get_children": lambda _, child=child: [child]})()
                self.walk(holder, False, False)
        mutants = []
        for mutant in sorted(self.found.values(), key=lambda mutant: (mutant.offset, mutant.kind)):
            if any(start <= mutant.offset < end for start, end in self.passed_over):
                continue
            for start, end, line in self.functions:  # the innermost comes last
                if start <= mutant.offset < end:
                    mutant.function = line
            mutants.append(mutant)
        return mutants


def compile_arguments(root, build):
    """For each source file of the project, what clang needs to read it."""
    arguments = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        words = shlex.split(entry["command"].replace("-isystem ", "-isystem"))
        arguments[entry["file"]] = [word for word in words
                                    if word.startswith(("-I", "-D", "-std", "-isystem"))]
    return {file[len(str(root)) + 1:]: flags for file, flags in arguments.items()
            if file.startswith(str(root) + "/")}


def find_mutants(root, build, cache, file):
    """The mutants of `file`, in order. A header is read through a source file that is named alike or that includes it."""
    digest = hashlib.sha256((root / file).read_bytes() + Path(__file__).read_bytes()).hexdigest()
    kept = cache / (file.replace("/", "+") + ".json")
    if kept.exists():
        stored = json.loads(kept.read_text())
        if stored["digest"] == digest:
            return [Mutant(**mutant) for mutant in stored["mutants"]]
    arguments = compile_arguments(root, build)
    flags = arguments.get(file) or arguments.get(file.removesuffix(".h") + ".cpp")
    if flags is None:
        users = [user for user in arguments if f'#include "{file.split("/", 1)[1]}"'
                 in (root / user).read_text()]
        flags = arguments[users[0]] if users else next(iter(arguments.values()))
    unit = clang.cindex.Index.create().parse(str(root / file), args=["-xc++", *flags])
    errors = [str(found) for found in unit.diagnostics
              if found.severity >= clang.cindex.Diagnostic.Error]
    if errors:
        raise SystemExit(f"libclang cannot read {file}: {errors[0]}")
    mutants = Finder(root, file, unit).all()
    kept.parent.mkdir(parents=True, exist_ok=True)
    kept.write_text(json.dumps({"digest": digest, "mutants": [asdict(mutant) for mutant in mutants]}))
    return mutants
