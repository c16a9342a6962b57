#!/usr/bin/env python3
"""Brings the files of this folder up to date with the texts of the sources.

    update.py           takes over new and changed texts, for a translator to finish, and drops
                        those that the sources no longer have
    update.py --check   writes nothing; names every text that is missing here or no longer in the
                        sources, that has no translation, or whose translation lost something that
                        the program or the operator needs: a place mark, a mnemonic, an ellipsis or
                        a colon at the end, a filter of file names, spaces at the ends

The check ends with 1 when it names anything. With --lupdate PROGRAM another lupdate than the one
of the search path is used.
"""

import argparse
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "translations"

# The folders whose texts each file has, by the first part of the file's name.
SOURCES = {
    "UIComponents": ["Common", "Platform", "UI"],
    "operator-client": ["gallery"],
}
# English texts are those of the sources; only the forms of their plurals are written apart.
SOURCE_LANGUAGE = "en"

PLACE_MARK = re.compile(r"%L?(?:\d\d?|n)")
MNEMONIC = re.compile(r"&(?=\w)")
FILE_FILTER = re.compile(r"\*\.\w+|\(\*\)")


def language_of(file):
    return file.stem.split("_", 1)[1]


def run_lupdate(lupdate, file, target, keep_obsolete):
    """Brings target, a copy of the file or the file itself, up to date with the sources."""
    options = ["-silent", "-locations", "none", "-source-language", SOURCE_LANGUAGE, "-target-language",
               language_of(file), "-disable-heuristic", "sametext", "-disable-heuristic", "similartext"]
    if not keep_obsolete:
        options.append("-no-obsolete")
    if language_of(file) == SOURCE_LANGUAGE:
        options.append("-pluralonly")
    folders = SOURCES[file.stem.split("_", 1)[0]]
    # Without the root as include path, classes of other files would be taken for unknown ones.
    subprocess.run([lupdate, *options, "-I", ".", *folders, "-ts", str(target)], cwd=ROOT, check=True)


def messages(file):
    """(context, source, comment) -> the message's element."""
    result = {}
    for context in xml.etree.ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment", ""))
            result[key] = message
    return result


def is_obsolete(message):
    return message.find("translation").get("type") in ("vanished", "obsolete")


def forms(message):
    """The translation, or the forms of a plural."""
    translation = message.find("translation")
    plural = [form.text or "" for form in translation.iter("numerusform")]
    return plural if message.get("numerus") else [translation.text or ""]


def ending(text):
    """The ellipsis or colon at the end, whichever way the language writes it."""
    text = text.rstrip()
    if text.endswith(("\u2026", "...")):
        return "\u2026"
    return ":" if text.endswith((":", "\uff1a")) else ""


def outer_spaces(text):
    return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]


def losses(source, text):
    """What of the source the translation does not have, in words."""
    marks = sorted(PLACE_MARK.findall(source))
    # A plural form may do without the number: "one window".
    if sorted(PLACE_MARK.findall(text)) not in (marks, [mark for mark in marks if not mark.endswith("n")]):
        yield f"place marks are {marks}"
    if len(MNEMONIC.findall(source)) != len(MNEMONIC.findall(text)):
        yield "mnemonic"
    if ending(source) != ending(text):
        yield "ellipsis or colon at the end"
    if FILE_FILTER.findall(source) != FILE_FILTER.findall(text):
        yield "filter of file names"
    if source.count("\n") != text.count("\n"):
        yield "line breaks"
    if outer_spaces(source) != outer_spaces(text):
        yield "spaces at the ends"


def faults_of(message, source):
    translation = message.find("translation")
    if translation.get("type") == "unfinished" or not all(forms(message)):
        return ["no finished translation"]
    return [f"lost: {loss}" for text in forms(message) for loss in losses(source, text)]


def check(lupdate, file):
    """The faults of a file, one a line."""
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        target = Path(folder) / file.name
        target.write_bytes(file.read_bytes())
        run_lupdate(lupdate, file, target, keep_obsolete=True)
        wanted = messages(target)
    present = messages(file)
    for key, message in wanted.items():
        context, source, _ = key
        if is_obsolete(message):
            faults.append((context, source, "no longer in the sources"))
        elif key not in present:
            faults.append((context, source, "missing"))
        else:
            faults += [(context, source, fault) for fault in faults_of(message, source)]
    return [f"{file.name}: {context}: {source!r}: {fault}" for context, source, fault in faults]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--lupdate", default="lupdate")
    arguments = parser.parse_args()
    files = sorted(FOLDER.glob("*.ts"))
    if not arguments.check:
        for file in files:
            run_lupdate(arguments.lupdate, file, file, keep_obsolete=False)
        return 0
    faults = [fault for file in files for fault in check(arguments.lupdate, file)]
    print("\n".join(faults))
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
