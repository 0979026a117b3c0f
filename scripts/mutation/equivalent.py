"""Mutants that make no difference to anyone, as scripts/mutation/equivalent.txt lists them with their reasons."""


def lines_around(mutant, source):
    """The lines of the mutant without and with it, each as one text."""
    end = mutant.offset + mutant.length
    first = source.rfind(b"\n", 0, mutant.offset) + 1
    last = source.find(b"\n", end)
    changed = source[first:mutant.offset] + mutant.after.encode() + source[end:last]
    return tuple(" ".join(text.decode().split()) for text in (source[first:last], changed))


class Equivalents:
    """Each entry has a file, its lines without and with the mutant, and the reason."""

    def __init__(self, root):
        self.root = root
        self.listed = set()
        for entry in (root / "scripts/mutation/equivalent.txt").read_text().split("\n\n"):
            lines = [line for line in entry.splitlines() if line and not line.startswith("#")]
            if lines and len(lines) < 4:
                raise SystemExit(f"equivalent.txt: no reason for: {lines}")
            if lines:
                file, before, after = (" ".join(line.split()) for line in lines[:3])
                if before not in self.text(file):
                    raise SystemExit(f"equivalent.txt: {file} no longer has: {before}")
                self.listed.add((file, before, after))

    def text(self, file):
        path = self.root / file
        return " ".join(path.read_text().split()) if path.exists() else ""

    def has(self, mutant):
        return (mutant.file, *lines_around(mutant, (self.root / mutant.file).read_bytes())) in self.listed
