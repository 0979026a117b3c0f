"""The mutants of a source file: single small changes that a good test should notice."""

import hashlib
import json
import re
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
    """`length` bytes at `offset` become `after`. `start` and `end` hold the expression or statement that can be chosen
    while the program runs. `constant` if the compiler may evaluate it."""
    file: str
    line: int
    column: int
    kind: str
    offset: int
    length: int
    before: str
    after: str
    start: int
    end: int
    constant: bool = False

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
        self.expressions = []  # extents of those with an operator
        self.constants = []  # extents of what the compiler may evaluate
        self.tables = []  # extents of those constants that may be made while the program starts
        self.assertions = []  # extents of those that the compiler checks
        self.passed_over = []  # extents of what only takes time or memory

    def add(self, kind, start, length, after, extent=None):
        extent = extent or (start, start + length)
        before = self.bytes[start:start + length].decode()
        line = self.bytes.count(b"\n", 0, start) + 1
        column = start - self.bytes.rfind(b"\n", 0, start)
        mutant = Mutant(self.file, line, column, kind, start, length, before, after, *extent)
        self.found.setdefault(mutant.id, mutant)

    def text(self, cursor):
        return self.bytes[cursor.extent.start.offset:cursor.extent.end.offset].decode()

    def written_here(self, cursor):
        """False for what a macro or another file has written."""
        extent = cursor.extent
        return (extent.start.file is not None and extent.start.file.name == self.path
                and extent.end.offset > extent.start.offset)

    def around(self, offset, length):
        """The smallest expression around an operator."""
        return min(((start, end) for start, end in self.expressions
                    if start <= offset and offset + length <= end and end - start > length),
                   key=lambda extent: extent[1] - extent[0], default=(offset, offset))

    def operators(self):
        for token in self.unit.get_tokens(extent=self.unit.cursor.extent):
            if token.kind != TokenKind.PUNCTUATION:
                continue
            spelling, at = token.spelling, token.extent.start.offset
            if spelling == "!" and token.cursor.kind == CursorKind.UNARY_OPERATOR:
                self.add("negation", at, 1, "", self.around(at, 1))
            for kind, table in (("comparison", COMPARISON), ("boundary", BOUNDARY), ("logic", LOGIC),
                                ("arithmetic", ARITHMETIC)):
                if spelling in table and is_operator(token.cursor, spelling):
                    unary = token.cursor.kind == CursorKind.UNARY_OPERATOR
                    if not unary or spelling in ("++", "--"):
                        self.add(kind, at, len(spelling), table[spelling], self.around(at, len(spelling)))

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
        if cursor.kind == CursorKind.CALL_EXPR and cursor.spelling in ("reserve", "shrink_to_fit"):
            self.passed_over.append((cursor.extent.start.offset, cursor.extent.end.offset))
        elif drops and self.written_here(cursor):
            self.add("dropped", cursor.extent.start.offset, len(self.text(cursor).encode()), "(void)0")

    def cell(self, cursor):
        start, text = cursor.extent.start.offset, self.text(cursor)
        if not self.written_here(cursor) or self.bytes[:start].rstrip().endswith(b"["):
            return
        if text in ("true", "false"):
            self.add("cell", start, len(text), "false" if text == "true" else "true")
        elif re.fullmatch(r"(0[xX][0-9A-Fa-f']+|[0-9']+)[uUlL]*", text):
            digits = re.sub(r"^0(?=[0-7])", "0o", text.rstrip("uUlL").replace("'", ""))
            number = int(digits, 0)
            up = number == 0 or hashlib.sha256(f"{self.file}{start}".encode()).digest()[0] % 2 == 0
            changed = number + (1 if up else -1)
            self.add("cell", start, len(text), hex(changed) if text[:2] in ("0x", "0X") else str(changed))

    def walk(self, cursor, table, last):
        """`last` says whether the function may end behind the cursor."""
        children = list(cursor.get_children())
        for child in children:
            inTable = table
            kind = child.kind
            extent = (child.extent.start.offset, child.extent.end.offset)
            if kind == CursorKind.STATIC_ASSERT:
                self.assertions.append(extent)
                continue
            if kind in BUILT_IN or kind == CursorKind.CALL_EXPR and child.spelling.startswith("operator"):
                self.expressions.append(extent)
            if kind in FUNCTIONS and self.written_here(child):
                inTable = False
                if b"constexpr" in self.bytes[extent[0]:extent[1]].split(b"{")[0]:
                    self.constants.append(extent)
            if kind == CursorKind.VAR_DECL and self.written_here(child):
                words = self.text(child).split("=")[0].split("{")[0].split()
                inTable = cursor.kind in SCOPES or "constexpr" in words or "static" in words
                if inTable or "const" in words:
                    self.constants.append(extent)
                if inTable and (cursor.kind in SCOPES or "static" in words) and "*" not in words:
                    self.tables.append(extent)
            if kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.CONDITIONAL_OPERATOR):
                self.condition(child)
            if cursor.kind == CursorKind.COMPOUND_STMT and kind != CursorKind.RETURN_STMT:
                self.statement(child)
            if cursor.kind == CursorKind.IF_STMT and kind in JUMPS | {CursorKind.RETURN_STMT} and not last:
                self.statement(child)
            ends = (kind == CursorKind.COMPOUND_STMT and (last or cursor.kind in FUNCTIONS)
                    or kind == CursorKind.IF_STMT and last and child == children[-1]
                    or cursor.kind == CursorKind.IF_STMT and last)
            if inTable and kind in (CursorKind.INTEGER_LITERAL, CursorKind.CXX_BOOL_LITERAL_EXPR):
                self.cell(child)
            self.walk(child, inTable, ends)

    def all(self):
        for child in self.unit.cursor.get_children():
            if child.location.file is not None and child.location.file.name == self.path:
                holder = type("Holder", (), {"kind": CursorKind.TRANSLATION_UNIT,
                                             "get_children": lambda _, child=child: [child]})()
                self.walk(holder, False, False)
        self.operators()
        mutants = []
        for mutant in sorted(self.found.values(), key=lambda mutant: (mutant.offset, mutant.kind)):
            if not is_in(self.assertions + self.passed_over, mutant.offset):
                mutant.constant = is_in(self.constants, mutant.offset)
                mutants.append(mutant)
        return mutants


def is_in(extents, offset):
    return any(start <= offset < end for start, end in extents)


@dataclass
class SourceFile:
    """A file with its mutants; the extents of its tables and of its static assertions."""
    name: str
    mutants: list
    tables: list
    assertions: list


def read_source(root, cache, file, flags):
    digest = hashlib.sha256((root / file).read_bytes() + Path(__file__).read_bytes()).hexdigest()
    kept = cache / (file.replace("/", "+") + ".json")
    if kept.exists() and (stored := json.loads(kept.read_text()))["digest"] == digest:
        return SourceFile(file, [Mutant(**mutant) for mutant in stored["mutants"]], stored["tables"], stored["assertions"])
    unit = clang.cindex.Index.create().parse(str(root / file), args=["-xc++", *flags])
    errors = [str(found) for found in unit.diagnostics
              if found.severity >= clang.cindex.Diagnostic.Error]
    if errors:
        raise SystemExit(f"libclang cannot read {file}: {errors[0]}")
    finder = Finder(root, file, unit)
    source = SourceFile(file, finder.all(), finder.tables, finder.assertions)
    kept.parent.mkdir(parents=True, exist_ok=True)
    kept.write_text(json.dumps(asdict(source) | {"digest": digest}))
    return source
