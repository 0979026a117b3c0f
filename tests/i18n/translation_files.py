"""The .ts files of the programs' texts: reads them, makes pseudo-languages from them, and checks them.

    translation_files.py check LUPDATE FOLDER SAME_TEXTS -- <folders and options for lupdate>
    translation_files.py pseudo FILE OUTPUT
"""

import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

INSERT = re.compile(r"%(?:L?\d|n)")
LETTER_OF_MENU = re.compile(r"&(?=[^&\s])")
# Without an "&" of their own: entities are not used, and "&&" is an ampersand.
ACCENTED = str.maketrans("AEIOUaeiouCcNnYy", "ÀÉÎÖÛàéîöûÇçÑñÝý")


def messages(path):
    """Of each message its place, its English text, its translations, and whether they are current."""
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = translation.findall("numerusform")
            texts = ["".join(form.itertext()) for form in forms or [translation]]
            place = (context.findtext("name"), message.findtext("source"), message.findtext("comment") or "")
            yield place, texts, translation.get("type") is None, bool(forms)


def same_texts(path):
    """What may be the same as in English: the languages by text."""
    lines = [line for line in path.read_text().splitlines() if line and not line.startswith("#")]
    return {text: languages.split() for text, languages in (line.rsplit(" = ", 1) for line in lines)}


def faults(english, text, is_plural):
    def inserts(of):
        # One of something may be a word.
        return sorted(set(INSERT.findall(of)) - ({"%n"} if is_plural else set()))

    if not text.strip():
        yield "is empty"
    if inserts(text) != inserts(english):
        yield f"has the inserts {inserts(text)}"
    if "<" not in english and len(LETTER_OF_MENU.findall(text.replace("&&", ""))) != len(
            LETTER_OF_MENU.findall(english.replace("&&", ""))):
        yield "has not one letter for the menu as in English"


def check(lupdate, folder, same, sources):
    found = []
    allowed = same_texts(same)
    files = sorted(folder.glob("*.ts"))
    with tempfile.TemporaryDirectory() as name:
        copies = [Path(shutil.copy(file, name)) for file in files if file.stem != "en"]
        subprocess.run([lupdate, "-silent", "-no-obsolete", "-locations", "none", *sources, "-ts", *copies],
                       check=True, stderr=subprocess.DEVNULL)
        for copy in copies:
            if {place for place, *_ in messages(copy)} != {place for place, *_ in messages(folder / copy.name)}:
                found.append(f"{copy.name} has other texts than the sources; build the target update-translations")
    count = 0
    for file in files:
        for (context, english, _), texts, is_current, is_plural in messages(file):
            if not is_current:
                continue
            count += 1
            place = f"{file.name}: {context}: {english!r}"
            found += [f"{place} {fault}: {text!r}" for text in texts for fault in faults(english, text, is_plural)]
            says_something = re.search(r"[^\W\d_]{3}", INSERT.sub("", english))
            is_allowed = {"*", file.stem} & set(allowed.get(english, []))
            if file.stem != "en" and english in texts and says_something and not is_allowed:
                found.append(f"{place} is the same as in English; {same.name} does not list it")
    if count < 500:
        found.append(f"there are only {count} translations")
    return found


def pseudo_text(english):
    """As the dialog's pseudo-language: bracketed, accented and longer."""
    parts = re.split(r"(%(?:L?\d|n)|<[^>]*>|&\w+;|\n)", english)
    text = "".join(part if i % 2 else part.translate(ACCENTED) for i, part in enumerate(parts))
    return f"[{text}{'~' * (2 * len(english) // 5)}]"


def write_pseudo(source, output):
    tree = ElementTree.parse(source)
    tree.getroot().set("language", "en")
    for message in tree.getroot().iter("message"):
        translation = message.find("translation")
        translation.attrib.pop("type", None)
        is_plural = bool(translation.findall("numerusform"))
        for child in list(translation):
            translation.remove(child)
        text = pseudo_text(message.findtext("source"))
        translation.text = None if is_plural else text
        for _ in range(2 if is_plural else 0):
            ElementTree.SubElement(translation, "numerusform").text = text
    tree.write(output, encoding="utf-8", xml_declaration=True)


def main(command, *words):
    if command == "pseudo":
        return write_pseudo(*words)
    lupdate, folder, same, _, *sources = words
    found = check(lupdate, Path(folder), Path(same), sources)
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
