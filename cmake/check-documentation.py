#!/usr/bin/env python3
"""Names every public symbol that its header does not explain, and everything that doxygen finds wrong.

    check-documentation.py <doxygen> <Doxyfile>            the headers that the Doxyfile names
    check-documentation.py <doxygen> <Doxyfile> <header>   this one header instead

Doxygen reads the headers into a temporary folder, once, as XML. A symbol is a class, a namespace, and
each public or protected function, signal, slot, property, type, enumeration and value of one; it is
explained when it has a brief or a detailed description of its own or of what it overrides. Doxygen's own
warnings, such as for a @param that is no parameter, are faults too.

Constructors, destructors and assignments need no words where their class has none for them, nor do
handlers that override Qt's, which are explained there. Ends with 1 when something is found.
"""
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

EXPLAINED_BY_QT = re.compile(r"\w*[eE]vent(Filter)?|sizeHint|minimumSizeHint")
COMPOUNDS = {"class", "struct", "union", "namespace"}


def read_headers(doxygen: str, doxyfile: str, header: str, folder: pathlib.Path) -> str:
    """Writes the XML of the headers to folder/xml; the warnings."""
    settings = [
        f'@INCLUDE = "{doxyfile}"',
        f'OUTPUT_DIRECTORY = "{folder}"',
        f'WARN_LOGFILE = "{folder}/warnings.txt"',
        "EXTRACT_ALL = YES",  # what has no words is in the XML then, too
        "GENERATE_HTML = NO",
        "GENERATE_XML = YES",
        "XML_PROGRAMLISTING = NO",
    ]
    if header:
        settings.append(f'INPUT = "{header}"')
    subprocess.run([doxygen, "-"], input="\n".join(settings), text=True, check=True)
    return (folder / "warnings.txt").read_text(encoding="utf-8")


def has_words(element) -> bool:
    return any("".join(part.itertext()).strip() for part in element.findall("*") if part.tag.endswith("description"))


def needs_no_words(member, owner: str) -> bool:
    name = member.findtext("name")
    own_name = owner.split("::")[-1]
    return (
        member.get("prot") == "private"
        or name in (own_name, "~" + own_name, "operator=")
        or EXPLAINED_BY_QT.fullmatch(name) is not None
    )


def declares_only(compound) -> bool:
    """Whether it is a namespace in which nothing is defined, such as that of the classes made from forms."""
    content = ("sectiondef", "innerclass", "innernamespace")
    return compound.get("kind") == "namespace" and all(compound.find(tag) is None for tag in content)


def place(element) -> str:
    location = element.find("location")
    return f"{location.get('file')}:{location.get('line')}" if location is not None else "?"


def unexplained_members(compound, owner: str):
    for member in compound.iter("memberdef"):
        if needs_no_words(member, owner):
            continue
        name = f"{owner}::{member.findtext('name')}"
        if not has_words(member):
            yield f"{place(member)}: {member.get('kind')} {name} is not explained"
        for value in member.findall("enumvalue"):
            if not has_words(value):
                yield f"{place(member)}: value {name}::{value.findtext('name')} is not explained"


def unexplained(folder: pathlib.Path):
    for file in sorted(folder.glob("*.xml")):
        for compound in xml.etree.ElementTree.parse(file).getroot().findall("compounddef"):
            kind = compound.get("kind")
            if kind not in COMPOUNDS | {"file"} or compound.get("prot") == "private" or declares_only(compound):
                continue
            owner = compound.findtext("compoundname")
            if kind != "file" and not has_words(compound):
                yield f"{place(compound)}: {compound.get('kind')} {owner} is not explained"
            yield from unexplained_members(compound, owner)


def main() -> int:
    doxygen, doxyfile, *header = sys.argv[1:]
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        warnings = read_headers(doxygen, doxyfile, header[0] if header else "", folder)
        faults = [line for line in warnings.splitlines() if line]
        faults += unexplained(folder / "xml")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
